#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QString>

/**
 * The process's standard output. Collects what is written and passes it on in
 * large pieces. All text goes out as UTF-8.
 */
class StandardOutput
{
    Q_DECLARE_TR_FUNCTIONS(StandardOutput)

public:
    StandardOutput();
    ~StandardOutput() { flush(); }

    void write(const QByteArray &bytes);
    void writeLine(const QString &line);

    /**
     * A line for people around what other programs read, such as the heads of columns:
     * goes to standard error unless people read the output itself.
     */
    void writeRemark(const QString &line);

    /** Passes on what is collected; false when any of the output was lost, which is told. */
    bool flush();

    bool isTerminal() const { return m_isTerminal; }

private:
    void fail();

    QFile m_file;
    QByteArray m_pending;
    bool m_isTerminal;
    bool m_failed = false;
};

namespace Console {

/** A message to the user, on standard error, after the program's name. */
void reportError(const QString &message);

/** A line to the user, on standard error. */
void remark(const QString &line);

/**
 * Whether @p c steers a terminal or makes text look other than it is: control characters,
 * ends of lines, and what turns the direction of the text around it.
 */
bool isUnprintable(QChar c);

/** @p text with U+FFFD for all that is unprintable, so that no name can steer a terminal. */
QString printable(QString text);

/** Whether standard error is a terminal. */
bool errorIsTerminal();

/** Width in columns of the terminal at standard error; 80 when it is not known. */
int terminalWidth();

} // namespace Console
