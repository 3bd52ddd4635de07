#pragma once

#include "cli/Console.h"
#include <QByteArray>
#include <QString>

/**
 * Writes JSON as it comes, so that a list of millions of entries never lies in
 * memory whole. The caller keeps the brackets in balance.
 */
class JsonWriter
{
public:
    explicit JsonWriter(ByteSink &output) : m_output(output) {}

    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }
    /** Ends the line; the next value starts a document of its own. */
    void endLine();

    void key(const char *name);
    void key(const QString &name);
    void value(const QString &text);
    void value(int number);
    void value(qint64 number);
    /** In the fewest digits that read back as the same number; null when it is not finite. */
    void value(double number);
    void value(bool flag);
    void null();

    template <typename T>
    void member(const char *name, const T &content)
    {
        key(name);
        value(content);
    }

    /** @p text in quotes. Halves of surrogate pairs become U+FFFD. */
    static QByteArray quoted(const QString &text);
    static QByteArray number(double number);

private:
    void open(char bracket);
    void close(char bracket);
    void put(const QByteArray &text);

    ByteSink &m_output;
    bool m_needsComma = false;
};
