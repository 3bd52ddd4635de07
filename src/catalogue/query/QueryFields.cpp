#include "catalogue/query/QueryFields.h"

#include "base/Spelling.h"
#include "catalogue/query/ColorNames.h"

#include <algorithm>

namespace {

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
    return field == all().end() ? nullptr : &*field;
}

const QueryField *QueryFields::like(const QString &name)
{
    QStringList names;
    for (const QueryField &field : all())
        names.append(field.name);
    return named(Spelling::nearest(name, names));
}
