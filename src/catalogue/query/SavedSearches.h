#pragma once

#include <QCoreApplication>
#include <QList>
#include <QObject>
#include <QString>

/** A search under the name that the user gave it. */
struct SavedSearch
{
    QString name;
    QString query;

    bool operator==(const SavedSearch &other) const
    {
        return name == other.name && query == other.query;
    }
};

/** The searches that the user has saved, under names that differ. Main thread only. */
class SavedSearches : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /** In natural order of the names. */
    virtual QList<SavedSearch> all() const = 0;

    /**
     * Each throws Error when what it changed can't be kept; then nothing is changed. Names are
     * trimmed. An empty name or one that is taken throws Error, too.
     */
    void add(const SavedSearch &search);
    void rename(const QString &oldName, const QString &newName);
    void remove(const QString &name);

signals:
    void changed();

protected:
    /** Keeps all of them, or throws Error and keeps what was. */
    virtual void store(const QList<SavedSearch> &searches) = 0;

private:
    QString checkedName(const QString &name) const;
    void replaceAll(QList<SavedSearch> searches);
};
