// How settings are read; SettingsWriter.cpp has the other way.

#include "base/SettingsFormat.h"

#include <QDataStream>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QStringList>
#include <QVector>

namespace {

bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

/** Splits the text into lines, without comments; a line end after a backslash or in quotes is none.
 */
class Lines
{
public:
    explicit Lines(const QByteArray &bytes) : m_bytes(bytes) {}

    bool next(QByteArray &line)
    {
        while (m_next < m_bytes.size() && isLineEnd(m_bytes.at(m_next)))
            ++m_next;
        const int start = m_next;
        bool quoted = false;
        for (; m_next < m_bytes.size(); ++m_next) {
            const char c = m_bytes.at(m_next);
            if (c == '\\')
                ++m_next;
            else if (c == '"')
                quoted = !quoted;
            else if (!quoted && (isLineEnd(c) || c == ';'))
                break;
        }
        line = m_bytes.mid(start, m_next - start).trimmed();
        skipComment();
        return start < m_bytes.size();
    }

private:
    void skipComment()
    {
        while (m_next < m_bytes.size() && !isLineEnd(m_bytes.at(m_next)))
            ++m_next;
    }

    const QByteArray &m_bytes;
    int m_next = 0;
};

QString unescapedKey(const QByteArray &text)
{
    QString key;
    for (int i = 0; i < text.size(); ++i) {
        const char c = text.at(i);
        if (c == '\\') {
            key += QLatin1Char('/');
            continue;
        }
        const bool wide = text.mid(i + 1, 1) == "U";
        const QByteArray digits = wide ? text.mid(i + 2, 4) : text.mid(i + 1, 2);
        bool isNumber = false;
        const ushort code = digits.toUShort(&isNumber, 16);
        if (c == '%' && isNumber && digits.size() == (wide ? 4 : 2)) {
            key += QChar(code);
            i += wide ? 5 : 2;
        } else {
            key += QLatin1Char(c);
        }
    }
    return key;
}

/** The strings of a value; more than one where commas stand outside of quotes. */
class ValueParser
{
public:
    explicit ValueParser(const QByteArray &text) : m_text(text) {}

    QStringList strings()
    {
        skipBlanks();
        while (m_next < m_text.size()) {
            const char c = m_text.at(m_next++);
            if (c == '\\')
                unescape();
            else if (c == '"')
                quote();
            else if (c == ',' && !m_inQuotes)
                finishString();
            else
                m_string += QLatin1Char(c);
        }
        finishString();
        return m_strings;
    }

private:
    void skipBlanks()
    {
        while (m_next < m_text.size() && (m_text.at(m_next) == ' ' || m_text.at(m_next) == '\t'))
            ++m_next;
    }

    void quote()
    {
        m_quoted = true;
        m_inQuotes = !m_inQuotes;
        if (!m_inQuotes)
            skipBlanks();
    }

    void finishString()
    {
        while (!m_quoted &&
               (m_string.endsWith(QLatin1Char(' ')) || m_string.endsWith(QLatin1Char('\t'))))
            m_string.chop(1);
        m_strings.append(m_string);
        m_string.clear();
        m_quoted = false;
        skipBlanks();
    }

    void unescape()
    {
        static const QByteArray letters("abfnrtv\"?'\\");
        static const QByteArray meanings("\a\b\f\n\r\t\v\"?'\\");
        if (m_next >= m_text.size())
            return;
        const char c = m_text.at(m_next++);
        const int letter = letters.indexOf(c);
        if (letter >= 0)
            m_string += QLatin1Char(meanings.at(letter));
        else if (c == 'x')
            appendNumber(16);
        else if (c >= '0' && c <= '7') {
            --m_next;
            appendNumber(8);
        }
    }

    void appendNumber(int base)
    {
        ushort code = 0;
        bool isDigit = false;
        const int first = m_next;
        while (m_next < m_text.size()) {
            const ushort digit = m_text.mid(m_next, 1).toUShort(&isDigit, base);
            if (!isDigit)
                break;
            code = ushort(code * base + digit);
            ++m_next;
        }
        if (m_next > first)
            m_string += QChar(code);
    }

    const QByteArray m_text;
    int m_next = 0;
    bool m_inQuotes = false;
    bool m_quoted = false;
    QString m_string;
    QStringList m_strings;
};

/** The numbers of "@Size(3 4)" and its like; none when there are not @p count of them. */
QVector<int> numbersIn(const QString &text, int count)
{
    const int open = text.indexOf(QLatin1Char('('));
    const QStringList words = text.mid(open + 1, text.size() - open - 2).split(QLatin1Char(' '));
    QVector<int> numbers;
    for (const QString &word : words)
        numbers.append(word.toInt());
    return numbers.size() == count ? numbers : QVector<int>();
}

QVariant streamed(const QString &text, int offset, QDataStream::Version version)
{
    QDataStream stream(text.mid(offset).toLatin1());
    stream.setVersion(version);
    QVariant value;
    stream >> value;
    return value;
}

QVariant toVariant(const QString &text)
{
    const auto begins = [&](const char *tag) { return text.startsWith(QLatin1String(tag)); };
    if (begins("@@"))
        return text.mid(1);
    if (!begins("@") || !text.endsWith(QLatin1Char(')')))
        return text;
    if (begins("@ByteArray("))
        return text.mid(11, text.size() - 12).toLatin1();
    if (begins("@String("))
        return text.mid(8, text.size() - 9);
    if (begins("@Variant("))
        return streamed(text, 9, QDataStream::Qt_4_0);
    if (begins("@DateTime("))
        return streamed(text, 10, QDataStream::Qt_5_6);
    if (text == QLatin1String("@Invalid()"))
        return {};
    if (const auto n = numbersIn(text, 4); begins("@Rect(") && !n.isEmpty())
        return QRect(n[0], n[1], n[2], n[3]);
    if (const auto n = numbersIn(text, 2); begins("@Size(") && !n.isEmpty())
        return QSize(n[0], n[1]);
    if (const auto n = numbersIn(text, 2); begins("@Point(") && !n.isEmpty())
        return QPoint(n[0], n[1]);
    return text;
}

QVariant toVariant(const QStringList &strings)
{
    if (strings.size() == 1)
        return toVariant(strings.first());
    QVariantList values;
    bool plain = true;
    for (const QString &string : strings) {
        values.append(toVariant(string));
        plain = plain && values.last().userType() == QMetaType::QString;
    }
    return plain ? QVariant(QVariant(values).toStringList()) : QVariant(values);
}

QString sectionOf(const QByteArray &line)
{
    const int end = line.indexOf(']');
    const QByteArray name = line.mid(1, end < 0 ? -1 : end - 1).trimmed();
    if (name.compare("general", Qt::CaseInsensitive) == 0)
        return {};
    if (name.compare("%general", Qt::CaseInsensitive) == 0)
        return QString::fromLatin1(name.mid(1)) + QLatin1Char('/');
    return unescapedKey(name) + QLatin1Char('/');
}

} // namespace

QSettings::SettingsMap SettingsFormat::parse(const QByteArray &bytes)
{
    QSettings::SettingsMap settings;
    QString section;
    QByteArray line;
    for (Lines lines(bytes); lines.next(line);) {
        const int equals = line.indexOf('=');
        if (line.startsWith('['))
            section = sectionOf(line);
        else if (equals > 0)
            settings.insert(section + unescapedKey(line.left(equals).trimmed()),
                            toVariant(ValueParser(line.mid(equals + 1)).strings()));
    }
    return settings;
}
