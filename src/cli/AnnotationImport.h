#pragma once

#include "cli/Annotation.h"
#include <QHash>
#include <QList>
#include <QSet>
#include <QSharedPointer>
#include <QStringList>

class Project;

/** Brings annotations to the designs of a catalogue that they belong to. */
class AnnotationImport
{
public:
    using File = QSharedPointer<IFile>;

    explicit AnnotationImport(Project &project);

    /** Adds what is new; what is there stays. */
    void add(const Annotation &annotation);

    /** Designs that got something, sorted. */
    QStringList updated() const;
    /** How many annotations brought nothing new. */
    int unchanged() const { return m_unchanged; }
    /** Those whose design is not in the catalogue: their path, or else their hash. */
    const QStringList &unknown() const { return m_unknown; }

private:
    QList<File> designsOf(const Annotation &annotation) const;

    Project &m_project;
    QHash<QByteArray, QList<File>> m_byHash;
    QHash<QString, File> m_byPath;
    QSet<QString> m_updated;
    int m_unchanged = 0;
    QStringList m_unknown;
};
