#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QString>

/** What takes bytes as they come. */
class ByteSink
{
public:
    virtual ~ByteSink() = default;
    virtual void write(const QByteArray &bytes) = 0;
};

/** Keeps all bytes in memory. */
class ByteBuffer : public ByteSink
{
public:
    void write(const QByteArray &bytes) override { m_bytes += bytes; }
    const QByteArray &bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

/**
 * The process's standard output. Collects what is written and passes it on in
 * large pieces. All text goes out as UTF-8.
 */
class StandardOutput : public ByteSink
{
    Q_DECLARE_TR_FUNCTIONS(StandardOutput)

public:
    StandardOutput();
    ~StandardOutput() override { flush(); }

    void write(const QByteArray &bytes) override;
    void writeLine(const QString &line);

    /** A text for programs with a NUL or a line's end behind it; printable on a terminal. */
    void writeEntry(const QString &text, bool nullSeparated);

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
