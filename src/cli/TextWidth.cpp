#include "cli/TextWidth.h"

#include <algorithm>
#include <clocale>
#include <cwchar>
#include <QVector>

namespace {

/** The system's table of widths, whatever the user's locale is. */
class UnicodeLocale
{
public:
    UnicodeLocale() : m_before(uselocale(locale())) {}
    ~UnicodeLocale() { uselocale(m_before); }

    UnicodeLocale(const UnicodeLocale &) = delete;
    UnicodeLocale &operator=(const UnicodeLocale &) = delete;

private:
    static locale_t locale()
    {
        static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
        return unicode;
    }

    locale_t m_before;
};

int widthOf(uint character)
{
    // Unknown to the system, such as those of later versions of Unicode.
    return std::abs(wcwidth(wchar_t(character)));
}

} // namespace

int TextWidth::of(const QString &text)
{
    const UnicodeLocale locale;
    const QVector<uint> characters = text.toUcs4();
    int columns = 0;
    for (const uint character : characters)
        columns += widthOf(character);
    return columns;
}

QString TextWidth::padded(const QString &text, int columns)
{
    return text + QString(std::max(0, columns - of(text)), QLatin1Char(' '));
}

QString TextWidth::cut(const QString &text, int columns)
{
    const UnicodeLocale locale;
    const QVector<uint> characters = text.toUcs4();
    int fitting = 0;
    for (int used = 0; fitting < characters.size(); ++fitting) {
        used += widthOf(characters.at(fitting));
        if (used > columns)
            break;
    }
    return QString::fromUcs4(characters.constData(), fitting);
}
