#pragma once

#include <QList>
#include <QSet>
#include <QSharedPointer>
#include <QString>

class IFile;

/**
 * Which designs have the same content as another one, by their content hashes. They are
 * counted at the first question only.
 */
class DuplicateIndex
{
public:
    /** Forgets what was counted; the next question is about @p files. */
    void setFiles(const QList<QSharedPointer<IFile>> &files);

    /** False for a design that hasn't been read. */
    bool contains(const IFile &file) const;

private:
    void count() const;

    QList<QSharedPointer<IFile>> m_files;
    mutable QSet<QString> m_hashes;
    mutable bool m_counted = false;
};
