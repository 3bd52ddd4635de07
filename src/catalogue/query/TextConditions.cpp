// The conditions about words: tags, names, folders, formats, threads and states.

#include "base/Error.h"
#include "catalogue/query/Conditions.h"
#include "catalogue/query/DesignFacts.h"
#include "catalogue/query/DesignPath.h"
#include "catalogue/query/DuplicateIndex.h"
#include "catalogue/records/IFile.h"
#include "catalogue/records/Thread.h"

#include <QStringMatcher>
#include <QVector>

namespace {

struct State
{
    /** The first is the one that is offered. */
    QStringList names;
    Condition condition;
};

const QVector<State> &allStates()
{
    static const QVector<State> states = {
        {{QStringLiteral("favorite"), QStringLiteral("favourite")},
         [](const IFile &file, const DuplicateIndex &) { return file.isFavorite(); }},
        {{QStringLiteral("untagged")},
         [](const IFile &file, const DuplicateIndex &) { return file.tags().isEmpty(); }},
        {{QStringLiteral("duplicate")},
         [](const IFile &file, const DuplicateIndex &duplicates) {
             return duplicates.contains(file);
         }},
        {{QStringLiteral("unreadable")},
         [](const IFile &file, const DuplicateIndex &) {
             return DesignFacts::areUnreadable(file);
         }},
    };
    return states;
}

} // namespace

Condition Conditions::tag(const QString &value, const QDateTime &)
{
    return [value](const IFile &file, const DuplicateIndex &) {
        return file.tags().contains(value, Qt::CaseInsensitive);
    };
}

Condition Conditions::name(const QString &value, const QDateTime &)
{
    const QStringMatcher matcher(value, Qt::CaseInsensitive);
    return [matcher](const IFile &file, const DuplicateIndex &) {
        const QString path = file.absoluteFilePath();
        return matcher.indexIn(DesignPath::baseName(path)) >= 0 ||
               matcher.indexIn(file.name()) >= 0;
    };
}

Condition Conditions::folder(const QString &value, const QDateTime &)
{
    const QStringMatcher matcher(value, Qt::CaseInsensitive);
    return [matcher](const IFile &file, const DuplicateIndex &) {
        const QString path = file.absoluteFilePath();
        return matcher.indexIn(DesignPath::folder(path)) >= 0;
    };
}

Condition Conditions::type(const QString &value, const QDateTime &)
{
    const QString suffix = value.startsWith(QLatin1Char('.')) ? value : QLatin1Char('.') + value;
    return [suffix](const IFile &file, const DuplicateIndex &) {
        return file.absoluteFilePath().endsWith(suffix, Qt::CaseInsensitive);
    };
}

Condition Conditions::thread(const QString &value, const QDateTime &)
{
    const QStringMatcher matcher(value, Qt::CaseInsensitive);
    return [matcher](const IFile &file, const DuplicateIndex &) {
        const PropertyListT<Thread> *threads = file.threadsProp();
        for (int i = 0; i < threads->count(); ++i) {
            const Thread *thread = threads->at(i);
            if (matcher.indexIn(thread->colorName()) >= 0 || matcher.indexIn(thread->chart()) >= 0)
                return true;
        }
        return false;
    };
}

Condition Conditions::state(const QString &value, const QDateTime &)
{
    for (const State &state : allStates()) {
        if (state.names.contains(value, Qt::CaseInsensitive))
            return state.condition;
    }
    throw Error(tr("'%1' is none of %2").arg(value, states().join(QStringLiteral(", "))));
}

QStringList Conditions::states()
{
    QStringList names;
    for (const State &state : allStates())
        names.append(state.names.constFirst());
    return names;
}
