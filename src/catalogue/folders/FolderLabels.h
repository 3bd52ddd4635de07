#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/** How folders are called beside each other. */
namespace FolderLabels {

/**
 * A label for each of @p folders, which are absolute paths: its own name, and behind it,
 * where several bear the same, as many of the folders above as it takes to tell them
 * apart.
 */
QHash<QString, QString> of(const QStringList &folders);

} // namespace FolderLabels
