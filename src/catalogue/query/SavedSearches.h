#pragma once

#include <QCoreApplication>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

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

/** What has become of saved searches in one go. */
struct SavedSearchEdits
{
    QList<SavedSearch> written;
    QStringList removed; ///< names, all gone before anything is written

    bool isEmpty() const { return written.isEmpty() && removed.isEmpty(); }
};

/**
 * The searches that the user has saved, under names that differ. Whoever keeps them listens
 * to what is edited. Main thread only.
 */
class SavedSearches : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /** In natural order of the names. */
    QList<SavedSearch> all() const { return m_searches; }

    /** Each throws Error for a name that is empty or taken. Names are trimmed. */
    void add(const SavedSearch &search);
    void rename(const QString &oldName, const QString &newName);
    void remove(const QString &name);

    /**
     * Adds those that are not there under their names. One whose name is that of another
     * search gets a name that is free; one without a name is left out.
     */
    void addMissing(const QList<SavedSearch> &searches);

    /** @p name as it is, or with a number behind it if it is taken. */
    QString freeName(const QString &name) const;

signals:
    void changed();
    void edited(const SavedSearchEdits &edits);

private:
    bool isTaken(const QString &name) const;
    QString checkedName(const QString &name) const;
    void apply(const SavedSearchEdits &edits);

    QList<SavedSearch> m_searches;
};
