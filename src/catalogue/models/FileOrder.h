#pragma once

#include "catalogue/records/IFile.h"

#include <QCollator>
#include <QHash>
#include <QList>
#include <QSharedPointer>
#include <QString>

/**
 * Records in natural order of their paths. The collation key of a path is made once
 * and kept for as long as a record has that path.
 */
class FileOrder
{
public:
    /** Puts @p files in order; records of equal rank stay as they are given. */
    void setFiles(const QList<QSharedPointer<IFile>> &files);

    const QList<QSharedPointer<IFile>> &files() const { return m_files; }

private:
    QList<QSharedPointer<IFile>> m_files;
    QHash<QString, QCollatorSortKey> m_keys;
};
