#include "catalogue/query/SavedSearches.h"

#include "base/Error.h"
#include "catalogue/records/LocaleAwareFunctions.h"

#include <algorithm>
#include <QStringList>

void SavedSearches::add(const SavedSearch &search)
{
    QList<SavedSearch> searches = all();
    searches.append({checkedName(search.name), search.query});
    replaceAll(searches);
}

void SavedSearches::rename(const QString &oldName, const QString &newName)
{
    if (newName.trimmed() == oldName)
        return;
    const QString name = checkedName(newName);
    QList<SavedSearch> searches = all();
    for (SavedSearch &search : searches) {
        if (search.name == oldName)
            search.name = name;
    }
    replaceAll(searches);
}

void SavedSearches::remove(const QString &name)
{
    QList<SavedSearch> searches = all();
    searches.erase(std::remove_if(searches.begin(), searches.end(),
                                  [&name](const SavedSearch &each) { return each.name == name; }),
                   searches.end());
    replaceAll(searches);
}

QString SavedSearches::checkedName(const QString &name) const
{
    QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        throw Error(tr("A saved search needs a name."));
    const QList<SavedSearch> searches = all();
    if (std::any_of(searches.begin(), searches.end(),
                    [&trimmed](const SavedSearch &each) { return each.name == trimmed; }))
        throw ErrorAlreadyExists(tr("There is a saved search named '%1' already.").arg(trimmed));
    return trimmed;
}

void SavedSearches::replaceAll(QList<SavedSearch> searches)
{
    QStringList names;
    for (const SavedSearch &search : searches)
        names.append(search.name);
    LocaleAwareFunctions::sort(names);
    std::sort(searches.begin(), searches.end(),
              [&names](const SavedSearch &a, const SavedSearch &b) {
                  return names.indexOf(a.name) < names.indexOf(b.name);
              });
    store(searches);
    emit changed();
}
