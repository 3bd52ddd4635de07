#include "catalogue/query/SavedSearches.h"

#include "base/Error.h"
#include "catalogue/records/LocaleAwareFunctions.h"

#include <algorithm>

void SavedSearches::add(const SavedSearch &search)
{
    apply({{{checkedName(search.name), search.query}}, {}});
}

void SavedSearches::rename(const QString &oldName, const QString &newName)
{
    if (newName.trimmed() == oldName)
        return;
    const QString name = checkedName(newName);
    for (const SavedSearch &search : qAsConst(m_searches)) {
        if (search.name == oldName) {
            apply({{{name, search.query}}, {oldName}});
            return;
        }
    }
}

void SavedSearches::remove(const QString &name)
{
    if (isTaken(name))
        apply({{}, {name}});
}

void SavedSearches::addMissing(const QList<SavedSearch> &searches)
{
    for (const SavedSearch &search : searches) {
        const QString name = search.name.trimmed();
        const QString numbered = name + QStringLiteral(" (");
        const bool isThere =
            std::any_of(m_searches.begin(), m_searches.end(), [&](const SavedSearch &each) {
                return each.query == search.query &&
                       (each.name == name || each.name.startsWith(numbered));
            });
        if (!name.isEmpty() && !isThere)
            apply({{{freeName(name), search.query}}, {}});
    }
}

QString SavedSearches::freeName(const QString &name) const
{
    QString free = name;
    for (int number = 2; isTaken(free); ++number)
        free = QStringLiteral("%1 (%2)").arg(name).arg(number);
    return free;
}

bool SavedSearches::isTaken(const QString &name) const
{
    return std::any_of(m_searches.begin(), m_searches.end(),
                       [&name](const SavedSearch &each) { return each.name == name; });
}

QString SavedSearches::checkedName(const QString &name) const
{
    QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        throw Error(tr("A saved search needs a name."));
    if (isTaken(trimmed))
        throw ErrorAlreadyExists(tr("There is a saved search named '%1' already.").arg(trimmed));
    return trimmed;
}

void SavedSearches::apply(const SavedSearchEdits &edits)
{
    const auto isGone = [&edits](const SavedSearch &each) {
        return edits.removed.contains(each.name);
    };
    m_searches.erase(std::remove_if(m_searches.begin(), m_searches.end(), isGone),
                     m_searches.end());
    m_searches += edits.written;
    QStringList names;
    for (const SavedSearch &search : qAsConst(m_searches))
        names.append(search.name);
    LocaleAwareFunctions::sort(names);
    std::sort(m_searches.begin(), m_searches.end(),
              [&names](const SavedSearch &a, const SavedSearch &b) {
                  return names.indexOf(a.name) < names.indexOf(b.name);
              });
    emit edited(edits);
    emit changed();
}
