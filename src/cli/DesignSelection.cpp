#include "cli/DesignSelection.h"

#include "catalogue/models/IFilterModel.h"
#include "catalogue/query/Query.h"
#include "catalogue/sync/ProjectController.h"
#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/LocalPath.h"
#include "cli/StandardInput.h"
#include <optional>
#include <QHash>

QList<QCommandLineOption> DesignSelection::options()
{
    return {
        {QStringLiteral("search"), tr("The designs that match, as with list --search."),
         QStringLiteral("QUERY")},
        {{QStringLiteral("0"), QStringLiteral("null")},
         tr("Names on standard input end with a NUL rather than a line.")},
    };
}

DesignSelection::DesignSelection(const CommandLine &line, const QStringList &names,
                                 Default whenNone)
    : m_byName(!names.isEmpty()), m_query(line.value("search"))
{
    const bool fromInput = names.contains(QStringLiteral("-"));
    if (m_byName && line.isSet("search"))
        throw UsageError(tr("Choose designs by their names or by --search."));
    // An empty search, such as that of a variable that is not set, would be for all.
    if (!m_byName && m_query.trimmed().isEmpty() && whenNone == Nothing)
        throw UsageError(tr("No design given."));
    if (fromInput && names.size() > 1)
        throw UsageError(tr("A dash must be the only name of a design."));
    if (line.isSet("null") && !fromInput)
        throw UsageError(tr("--null is for names on standard input."));
    expectRightQuery(m_query);
    const QStringList given = fromInput ? StandardInput::fileNames(line.isSet("null")) : names;
    for (const QString &name : given)
        m_paths.append(LocalPath::absolute(name));
    m_paths.removeDuplicates();
}

DesignSelection::Files DesignSelection::from(const ProjectController &controller) const
{
    if (m_byName)
        return named(controller);
    IFilterModel &filter = *controller.selectionModel()->filter();
    filter.setSearchSubstring(m_query);
    return filter.filteredFiles();
}

DesignSelection::Files DesignSelection::named(const ProjectController &controller) const
{
    QHash<QString, QSharedPointer<IFile>> known;
    const auto files = controller.project()->files();
    for (const auto &file : files)
        known.insert(file->absoluteFilePath(), file);
    Files found;
    for (const QString &path : m_paths) {
        if (known.contains(path))
            found.append(known.value(path));
        else
            Console::reportError(tr("%1 is not in the catalogue").arg(path));
    }
    if (found.size() < m_paths.size())
        throw Error(tr("Nothing was changed."));
    return found;
}

void DesignSelection::expectRightQuery(const QString &query)
{
    const std::optional<QueryRemark> remark = Query::parse(query).remark();
    if (!remark)
        return;
    if (remark->kind == QueryRemark::Hint) {
        Console::reportError(remark->message);
        return;
    }
    throw UsageError(tr("The search is wrong at character %1, '%2': %3")
                         .arg(QString::number(remark->position + 1),
                              query.mid(remark->position, remark->length), remark->message));
}
