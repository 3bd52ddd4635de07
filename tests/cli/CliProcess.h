#pragma once

#include "support/GuardFolder.h"

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

/**
 * Runs the command-line companion as a process of its own, in a home, a profile
 * and a folder for sockets that only it sees.
 */
class CliProcess
{
public:
    struct Result
    {
        int status = -1;
        QByteArray out;
        QByteArray error;

        QByteArray lastLine() const { return out.trimmed().split('\n').constLast(); }
    };

    CliProcess();

    /** @param input what comes from standard input */
    Result run(const QStringList &arguments, const QByteArray &input = {}) const;
    /** Gives @p process its environment and starts it. */
    bool start(QProcess &process, const QStringList &arguments,
               const QString &program = QStringLiteral(CLI_PATH)) const;
    static Result finish(QProcess &process);

    /** The folder that the companion runs in. */
    QString workPath(const QString &name = QString()) const;
    QString dataPath(const QString &name = QString()) const;
    QString temporaryPath() const { return m_root.filePath("tmp"); }

private:
    GuardFolder m_root;
};
