#include "catalogue/query/QueryFields.h"

#include "catalogue/query/ColorNames.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int ShortestMisspelling = 3;
constexpr int LongestMisspelling = 12;
constexpr int MostWrongLetters = 2;

/** How many letters have to be added, left out or replaced to make one text of the other. */
int editDistance(const QString &from, const QString &to)
{
    QVector<int> row(to.length() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < from.length(); ++i) {
        int diagonal = row.at(0);
        row[0] = i + 1;
        for (int k = 0; k < to.length(); ++k) {
            const int replaced = diagonal + (from.at(i) == to.at(k) ? 0 : 1);
            diagonal = row.at(k + 1);
            row[k + 1] = std::min({replaced, row.at(k) + 1, diagonal + 1});
        }
    }
    return row.constLast();
}

QStringList spellings(const QueryField &field)
{
    return QStringList(field.name) + field.otherNames;
}

} // namespace

QString QueryField::meaning() const
{
    return QCoreApplication::translate("Query", meaningText);
}

const QVector<QueryField> &QueryFields::all()
{
    static const QVector<QueryField> fields = {
        {QStringLiteral("tag"),
         {},
         &Conditions::tag,
         QueryField::LookUp,
         QStringLiteral("tag:flowers"),
         QT_TRANSLATE_NOOP("Query", "bear this tag"),
         nullptr},
        {QStringLiteral("name"),
         {},
         &Conditions::name,
         QueryField::SearchText,
         QStringLiteral("name:rose"),
         QT_TRANSLATE_NOOP("Query", "have this in their name"),
         nullptr},
        {QStringLiteral("folder"),
         {},
         &Conditions::folder,
         QueryField::SearchText,
         QStringLiteral("folder:xmas"),
         QT_TRANSLATE_NOOP("Query", "lie in a folder with this in its path"),
         nullptr},
        {QStringLiteral("type"),
         {},
         &Conditions::type,
         QueryField::LookUp,
         QStringLiteral("type:pes"),
         QT_TRANSLATE_NOOP("Query", "are of this format"),
         nullptr},
        {QStringLiteral("stitches"),
         {QStringLiteral("stitch")},
         &Conditions::stitches,
         QueryField::LookUp,
         QStringLiteral("stitches:<10000"),
         QT_TRANSLATE_NOOP("Query", "have so many stitches"),
         nullptr},
        {QStringLiteral("colors"),
         {QStringLiteral("colours")},
         &Conditions::colors,
         QueryField::LookUp,
         QStringLiteral("colors:<=5"),
         QT_TRANSLATE_NOOP("Query", "have so many thread colors"),
         nullptr},
        {QStringLiteral("width"),
         {},
         &Conditions::width,
         QueryField::LookUp,
         QStringLiteral("width:<100"),
         QT_TRANSLATE_NOOP("Query", "are so wide, in millimeters or with 'in' in inches"),
         nullptr},
        {QStringLiteral("height"),
         {},
         &Conditions::height,
         QueryField::LookUp,
         QStringLiteral("height:50..80"),
         QT_TRANSLATE_NOOP("Query", "are so high"),
         nullptr},
        {QStringLiteral("fits"),
         {},
         &Conditions::fits,
         QueryField::LookUp,
         QStringLiteral("fits:130x180"),
         QT_TRANSLATE_NOOP("Query", "fit into this hoop, also turned"),
         nullptr},
        {QStringLiteral("color"),
         {QStringLiteral("colour")},
         &Conditions::color,
         QueryField::SearchThreads,
         QStringLiteral("color:red"),
         QT_TRANSLATE_NOOP("Query", "have a thread near this color, also as #c03020"),
         &ColorNames::common},
        {QStringLiteral("thread"),
         {},
         &Conditions::thread,
         QueryField::SearchThreads,
         QStringLiteral("thread:\"Deep Rose\""),
         QT_TRANSLATE_NOOP("Query", "have a thread with this in its name or chart"),
         nullptr},
        {QStringLiteral("date"),
         // When a design came into the catalogue isn't recorded: its file's date stands for it.
         {QStringLiteral("added")},
         &Conditions::date,
         QueryField::LookUp,
         QStringLiteral("date:<7d"),
         QT_TRANSLATE_NOOP("Query", "have a file changed within a week, also as 2024-05"),
         nullptr},
        {QStringLiteral("is"),
         {},
         &Conditions::state,
         QueryField::LookUp,
         QStringLiteral("is:favorite"),
         QT_TRANSLATE_NOOP("Query", "are favorites; also untagged, duplicate, unreadable"),
         &Conditions::states},
    };
    return fields;
}

const QueryField *QueryFields::named(const QString &name)
{
    const auto field = std::find_if(all().begin(), all().end(), [&name](const QueryField &each) {
        return spellings(each).contains(name, Qt::CaseInsensitive);
    });
    return field == all().end() ? nullptr : field;
}

const QueryField *QueryFields::like(const QString &name)
{
    if (name.length() < ShortestMisspelling || name.length() > LongestMisspelling)
        return nullptr;
    const QueryField *nearest = nullptr;
    // Of a short name one letter may be wrong, of a long one two.
    int bound = std::min(MostWrongLetters, name.length() / 3);
    for (const QueryField &field : all()) {
        const int distance = editDistance(name.toLower(), field.name);
        if (distance <= bound) {
            nearest = &field;
            bound = distance - 1;
        }
    }
    return nearest;
}
