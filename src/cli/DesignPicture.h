#pragma once

#include "cli/DesignFile.h"
#include <QByteArray>
#include <QCommandLineOption>
#include <QCoreApplication>
#include <QList>

class CommandLine;

/** How designs are painted as pictures. */
class DesignPicture
{
    Q_DECLARE_TR_FUNCTIONS(DesignPicture)

public:
    static QList<QCommandLineOption> options();

    /** @throws UsageError when the options are wrong */
    explicit DesignPicture(const CommandLine &line);

    /** A PNG file. The design must be readable. @throws Error when it has no extent */
    QByteArray paint(const DesignFile &file) const;

private:
    int m_size; ///< of the longer side in pixels
    bool m_asCard;
};
