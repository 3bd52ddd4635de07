#pragma once

#include "embroidery/EmbPattern.h"
#include <QByteArray>
#include <QCoreApplication>
#include <QSharedPointer>
#include <QString>

/** One design as read from a file, or the reason why it could not be read. */
class DesignFile
{
    Q_DECLARE_TR_FUNCTIONS(DesignFile)

public:
    /** Bytes; no design comes near it, and reading a larger file would only fill the memory. */
    static constexpr qint64 LargestSize = 128 * 1024 * 1024;

    /** @param name the file as the user gave it */
    static DesignFile read(const QString &name);

    bool isReadable() const { return !m_pattern.isNull(); }

    QString name() const { return m_name; }
    /** The message of the engine when the file could not be read. */
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
