#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/**
 * The process's standard output. Collects what is written and passes it on in
 * large pieces. All text goes out as UTF-8.
 */
class StandardOutput
{
public:
    StandardOutput();
    ~StandardOutput() { flush(); }

    void write(const QByteArray &bytes);
    void writeLine(const QString &line);

    /** Passes on what is collected; false when any of the output was lost. */
    bool flush();

private:
    QFile m_file;
    QByteArray m_pending;
    bool m_failed = false;
};

namespace Console {

/** A message to the user, on standard error, after the program's name. */
void reportError(const QString &message);

/** @p text with its control characters replaced, so that no name can steer a terminal. */
QString printable(QString text);

/** Whether standard error is a terminal. */
bool errorIsTerminal();

/** Width in characters of the terminal at standard error; 80 when it is not known. */
int terminalWidth();

} // namespace Console
