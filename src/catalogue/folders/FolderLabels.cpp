#include "catalogue/folders/FolderLabels.h"

#include <algorithm>
#include <QMap>
#include <QSet>

namespace {

QString nameOf(const QString &folder)
{
    const QString name = folder.section(QLatin1Char('/'), -1);
    return name.isEmpty() ? folder : name;
}

/** The @p count folders above @p folder, or as many as there are. */
QString parentsOf(const QString &folder, int count)
{
    const QString parents = folder.section(QLatin1Char('/'), -1 - count, -2);
    return parents.isEmpty() ? QStringLiteral("/") : parents;
}

bool areToldApart(const QStringList &folders, int parents)
{
    QSet<QString> labels;
    for (const QString &folder : folders)
        labels.insert(parentsOf(folder, parents));
    return labels.size() == folders.size();
}

} // namespace

QHash<QString, QString> FolderLabels::of(const QStringList &folders)
{
    QMap<QString, QStringList> namesakes;
    for (const QString &folder : folders) {
        QStringList &group = namesakes[nameOf(folder)];
        if (!group.contains(folder))
            group.append(folder);
    }
    QHash<QString, QString> labels;
    for (auto group = namesakes.cbegin(); group != namesakes.cend(); ++group) {
        int depth = 0;
        int parents = 1;
        for (const QString &folder : group.value())
            depth = std::max(depth, int(folder.count(QLatin1Char('/'))));
        while (parents < depth && !areToldApart(group.value(), parents))
            ++parents;
        for (const QString &folder : group.value())
            labels.insert(folder, group.value().size() == 1
                                      ? group.key()
                                      : QStringLiteral("%1 (%2)").arg(group.key(),
                                                                      parentsOf(folder, parents)));
    }
    return labels;
}
