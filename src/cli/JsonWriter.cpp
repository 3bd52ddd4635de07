#include "cli/JsonWriter.h"

#include <cmath>
#include <QLocale>

void JsonWriter::endLine()
{
    m_output.write(QByteArrayLiteral("\n"));
    m_needsComma = false;
}

void JsonWriter::key(const char *name)
{
    key(QString::fromLatin1(name));
}

void JsonWriter::key(const QString &name)
{
    put(quoted(name) + ": ");
    m_needsComma = false;
}

void JsonWriter::value(const QString &text)
{
    put(quoted(text));
}

void JsonWriter::value(int value)
{
    put(QByteArray::number(value));
}

void JsonWriter::value(qint64 value)
{
    put(QByteArray::number(value));
}

void JsonWriter::value(double value)
{
    put(number(value));
}

void JsonWriter::value(bool flag)
{
    put(flag ? QByteArrayLiteral("true") : QByteArrayLiteral("false"));
}

void JsonWriter::null()
{
    put(QByteArrayLiteral("null"));
}

QByteArray JsonWriter::quoted(const QString &text)
{
    QString result(QLatin1Char('"'));
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('"') || c == QLatin1Char('\\')) {
            result += QLatin1Char('\\');
            result += c;
        } else if (Console::isUnprintable(c)) {
            result += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        } else if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            result += c;
            result += text.at(++i);
        } else {
            result += c.isSurrogate() ? QChar(QChar::ReplacementCharacter) : c;
        }
    }
    return (result + QLatin1Char('"')).toUtf8();
}

QByteArray JsonWriter::number(double number)
{
    constexpr double LargestPlain = 1e15;
    if (!std::isfinite(number))
        return QByteArrayLiteral("null");
    // Nearly all coordinates are whole numbers; a negative zero is left to the long way.
    if (std::trunc(number) == number && std::abs(number) < LargestPlain &&
        !(number == 0 && std::signbit(number)))
        return QByteArray::number(static_cast<qint64>(number));
    return QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
}

void JsonWriter::open(char bracket)
{
    put(QByteArray(1, bracket));
    m_needsComma = false;
}

void JsonWriter::close(char bracket)
{
    m_output.write(QByteArray(1, bracket));
    m_needsComma = true;
}

void JsonWriter::put(const QByteArray &text)
{
    if (m_needsComma)
        m_output.write(QByteArrayLiteral(", "));
    m_output.write(text);
    m_needsComma = true;
}
