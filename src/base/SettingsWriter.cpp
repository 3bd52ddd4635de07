// How settings are written; SettingsParser.cpp has the other way.

#include "base/SettingsFormat.h"

#include <QDataStream>
#include <QIODevice>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QStringList>

namespace {

QByteArray hex(ushort code)
{
    return QByteArray::number(code, 16);
}

bool isHexDigit(ushort code)
{
    return (code >= '0' && code <= '9') || (code >= 'a' && code <= 'f') ||
           (code >= 'A' && code <= 'F');
}

bool isPlainInKey(ushort code)
{
    return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') ||
           (code >= '0' && code <= '9') || code == '_' || code == '-' || code == '.';
}

QByteArray escapedKey(const QString &key)
{
    QByteArray text;
    for (const QChar character : key) {
        const ushort code = character.unicode();
        if (code == '/')
            text += '\\';
        else if (isPlainInKey(code))
            text += char(code);
        else if (code <= 0xff)
            text += '%' + hex(code).toUpper().rightJustified(2, '0');
        else
            text += "%U" + hex(code).toUpper().rightJustified(4, '0');
    }
    return text;
}

QByteArray escapedString(const QString &string)
{
    static const QByteArray letters("abfnrtv");
    static const QByteArray meanings("\a\b\f\n\r\t\v");
    QByteArray text;
    bool needsQuotes = false;
    bool afterNumber = false;
    for (const QChar character : string) {
        const ushort code = character.unicode();
        needsQuotes = needsQuotes || code == ';' || code == ',' || code == '=';
        // A digit would become one of the number's.
        if (afterNumber && isHexDigit(code)) {
            text += "\\x" + hex(code);
            continue;
        }
        afterNumber = false;
        const int letter = code < 0x20 && code > 0 ? meanings.indexOf(char(code)) : -1;
        if (letter >= 0) {
            text += '\\';
            text += letters.at(letter);
        } else if (code == '"' || code == '\\') {
            text += '\\';
            text += char(code);
        } else if (code >= 0x20 && code < 0x7f) {
            text += char(code);
        } else {
            text += code == 0 ? QByteArray("\\0") : "\\x" + hex(code);
            afterNumber = true;
        }
    }
    if (needsQuotes || text.startsWith(' ') || text.endsWith(' '))
        return '"' + text + '"';
    return text;
}

/** All of the bytes, those that are zero among them. */
QString latin1(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.constData(), bytes.size());
}

QString streamed(const QVariant &value)
{
    const bool isTime = value.userType() == QMetaType::QDateTime;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(isTime ? QDataStream::Qt_5_6 : QDataStream::Qt_4_0);
    stream << value;
    return QLatin1String(isTime ? "@DateTime(" : "@Variant(") + latin1(bytes) + QLatin1Char(')');
}

QString toString(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
        return QStringLiteral("@Invalid()");
    case QMetaType::QByteArray:
        return QStringLiteral("@ByteArray(%1)").arg(latin1(value.toByteArray()));
    case QMetaType::QString:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Bool:
    case QMetaType::Double: {
        const QString text = value.toString();
        if (text.contains(QChar::Null))
            return QStringLiteral("@String(%1)").arg(text);
        return text.startsWith(QLatin1Char('@')) ? QLatin1Char('@') + text : text;
    }
    case QMetaType::QRect: {
        const QRect rect = value.toRect();
        return QStringLiteral("@Rect(%1 %2 %3 %4)")
            .arg(rect.x())
            .arg(rect.y())
            .arg(rect.width())
            .arg(rect.height());
    }
    case QMetaType::QSize:
        return QStringLiteral("@Size(%1 %2)")
            .arg(value.toSize().width())
            .arg(value.toSize().height());
    case QMetaType::QPoint:
        return QStringLiteral("@Point(%1 %2)").arg(value.toPoint().x()).arg(value.toPoint().y());
    default:
        return streamed(value);
    }
}

QByteArray escapedValue(const QVariant &value)
{
    const QVariantList list = value.toList();
    const bool isList = value.userType() == QMetaType::QStringList ||
                        (value.userType() == QMetaType::QVariantList && list.size() != 1);
    if (!isList)
        return escapedString(toString(value));
    if (list.isEmpty())
        return "@Invalid()";
    QByteArrayList strings;
    for (const QVariant &element : list)
        strings.append(escapedString(toString(element)));
    return strings.join(", ");
}

QByteArray header(const QString &section)
{
    if (section.isEmpty())
        return "[General]\n";
    if (section.compare(QLatin1String("general"), Qt::CaseInsensitive) == 0)
        return "[%General]\n";
    return '[' + escapedKey(section) + "]\n";
}

} // namespace

QByteArray SettingsFormat::serialize(const QSettings::SettingsMap &settings)
{
    QMap<QString, QByteArray> sections;
    for (auto it = settings.cbegin(); it != settings.cend(); ++it) {
        const int slash = it.key().indexOf(QLatin1Char('/'));
        const QString section = slash < 0 ? QString() : it.key().left(slash);
        sections[section] +=
            escapedKey(it.key().mid(slash + 1)) + '=' + escapedValue(it.value()) + '\n';
    }
    QByteArrayList blocks;
    for (auto it = sections.cbegin(); it != sections.cend(); ++it)
        blocks.append(header(it.key()) + it.value());
    return blocks.join('\n');
}
