#pragma once

#include "base/DummyAbortCheck.h"
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

    /**
     * A PNG file. The design must be readable. Any thread.
     * @throws Error when the design has no extent, or @p abort said stop
     */
    QByteArray paint(const DesignFile &file, const IAbortCheck &abort = DummyAbortCheck()) const;

    /** Bytes that painting takes, besides the design. */
    qint64 memoryNeed() const { return qint64(m_size) * m_size * BytesPerPixel; }

private:
    static constexpr qint64 BytesPerPixel = 12; // of the picture, its ground and what encodes it

    int m_size; ///< of the longer side in pixels
    bool m_asCard;
};
