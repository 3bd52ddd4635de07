#include "catalogue/query/PlainSearch.h"

#include "catalogue/query/DesignPath.h"
#include "catalogue/records/IFile.h"

#include <algorithm>
#include <QVector>

namespace {

constexpr int LongestWholeWord = 2;

bool isWordCharacter(QChar c)
{
    return c.isLetterOrNumber() || c.isMark() || c == QLatin1Char('_');
}

bool isWordBoundary(QStringView text, qsizetype position)
{
    const bool before = position > 0 && isWordCharacter(text.at(position - 1));
    const bool after = position < text.size() && isWordCharacter(text.at(position));
    return before != after;
}

/** Chinese, Japanese, Korean or Thai: nothing tells where their words begin. */
bool writesWithoutBlanks(uint codePoint)
{
    switch (QChar::script(codePoint)) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Bopomofo:
    case QChar::Script_Hangul:
    case QChar::Script_Thai:
        return true;
    default:
        return false;
    }
}

bool writesWithoutBlanks(const QString &text)
{
    const QVector<uint> codePoints = text.toUcs4();
    return std::any_of(codePoints.begin(), codePoints.end(),
                       [](uint codePoint) { return writesWithoutBlanks(codePoint); });
}

} // namespace

PlainSearch::PlainSearch(const QString &text)
    : m_matcher(text, Qt::CaseInsensitive), m_length(text.length()),
      m_wholeWord(text.length() <= LongestWholeWord && !writesWithoutBlanks(text))
{
}

bool PlainSearch::matches(const IFile &file) const
{
    return matches(file.absoluteFilePath(), file.notes());
}

bool PlainSearch::matches(const QString &path, const QString &notes) const
{
    return isIn(DesignPath::baseName(path)) || isIn(notes);
}

bool PlainSearch::isIn(QStringView text) const
{
    if (m_length == 0)
        return std::any_of(text.begin(), text.end(), isWordCharacter);
    auto position = m_matcher.indexIn(text);
    while (m_wholeWord && position >= 0 &&
           !(isWordBoundary(text, position) && isWordBoundary(text, position + m_length)))
        position = m_matcher.indexIn(text, position + 1);
    return position >= 0;
}
