#pragma once

#include <memory>
#include <QByteArray>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

class File;
class Project;
class PropertyFactory;

/**
 * Takes out of a damaged catalogue what is whole in it. A record is one when all of it
 * is there, whatever stands around it: a single broken byte costs a single record.
 */
class CatalogueRecovery
{
public:
    /** Neither is owned. */
    CatalogueRecovery(Project *project, const PropertyFactory *factory);

    /**
     * Replaces the contents of the project by the whole folders, records and tags in
     * @p bytes, and tells the number of records. Never throws for what is in them.
     */
    int recover(const QByteArray &bytes);

private:
    QStringList wholeElements(const QString &name, int from, int to) const;
    QStringList stringsIn(const QString &name) const;
    QSharedPointer<File> recordOf(const QString &xml) const;

    Project *m_project;
    const PropertyFactory *m_factory;
    QString m_text;
};
