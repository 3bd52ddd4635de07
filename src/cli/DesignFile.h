#pragma once

#include "embroidery/EmbPattern.h"
#include <QSharedPointer>
#include <QString>

/** One design as read from a file, or the reason why it could not be read. */
class DesignFile
{
public:
    /** @param name the file as the user gave it */
    static DesignFile read(const QString &name);

    bool isReadable() const { return !m_pattern.isNull(); }

    QString name() const { return m_name; }
    /** Why the file could not be read: the engine's message, in the source language. */
    QString error() const { return m_error; }
    /** Null when the file could not be read. */
    QSharedPointer<Embroidery::EmbPattern> pattern() const { return m_pattern; }
    /** 32 lower-case hexadecimal digits. */
    QString md5() const { return m_md5; }

private:
    QString m_name;
    QString m_error;
    QString m_md5;
    QSharedPointer<Embroidery::EmbPattern> m_pattern;
};
