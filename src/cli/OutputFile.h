#pragma once

#include "base/files/FileReplacement.h"
#include <QCoreApplication>
#include <QString>
#include <QStringList>

/**
 * Where the outcome of a command is to go: never over a design or a catalogue, and over
 * another file only when the user says so.
 */
class OutputFile
{
    Q_DECLARE_TR_FUNCTIONS(OutputFile)

public:
    /** @throws UsageError or Error when @p name must not be written, @p sources being read */
    static void check(const QString &name, const QStringList &sources, bool replace);

    /** @throws Error when the file cannot be written; what was there before stays then */
    static void write(const QString &name, const QByteArray &bytes,
                      FileReplacement::Durability durability = FileReplacement::UntilRestart,
                      FileReplacement::Access access = FileReplacement::AsBefore);
};
