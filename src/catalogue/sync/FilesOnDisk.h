#pragma once

#include "base/files/FoundFiles.h"

#include <QHash>
#include <QString>
#include <QVector>

/** The designs that a walk came upon, in its order and each path once. */
class FilesOnDisk
{
public:
    void reserve(int count)
    {
        m_files.reserve(count);
        m_indexes.reserve(count);
    }

    void add(const FoundFile &file)
    {
        const int before = m_indexes.size();
        int &index = m_indexes[file.path];
        if (m_indexes.size() == before)
            return;
        index = m_files.size();
        m_files.append(file);
    }

    int count() const { return m_files.size(); }
    const FoundFile &at(int index) const { return m_files.at(index); }

    /** Negative for a path that the walk did not come upon. */
    int indexOf(const QString &path) const { return m_indexes.value(path, -1); }

private:
    QVector<FoundFile> m_files;
    QHash<QString, int> m_indexes;
};
