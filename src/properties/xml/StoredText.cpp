#include "properties/xml/StoredText.h"

#include "properties/xml/XmlTools.h"

namespace {

constexpr QChar Sign(0xf8fe);
constexpr int Digits = 4;

QString encoded(QChar c)
{
    return Sign + QStringLiteral("%1").arg(c.unicode(), Digits, 16, QLatin1Char('0'));
}

} // namespace

QString StoredText::encode(const QString &text)
{
    if (!text.isEmpty() && QStringView(text).trimmed().isEmpty())
        return encoded(text.front()) + text.mid(1);
    if (XmlTools::withoutInvalidCharacters(text).size() == text.size() && !text.contains(Sign))
        return text;
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const bool stays = text.at(i) != Sign && XmlTools::isValidCharacter(text, i);
        result += stays ? QString(text.at(i)) : encoded(text.at(i));
    }
    return result;
}

QString StoredText::decode(const QString &text)
{
    QString result;
    int from = 0;
    int sign = text.indexOf(Sign);
    while (sign >= 0) {
        bool ok = false;
        const QString digits = text.mid(sign + 1, Digits);
        const ushort code = digits.toUShort(&ok, 16);
        const int after = sign + 1 + Digits;
        if (ok && digits.size() == Digits) {
            result += text.mid(from, sign - from) + QChar(code);
            from = after;
        }
        sign = text.indexOf(Sign, qMax(from, sign + 1));
    }
    return from == 0 ? text : result + text.mid(from);
}
