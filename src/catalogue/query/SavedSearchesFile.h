#pragma once

#include "catalogue/query/SavedSearches.h"

/** Saved searches in a JSON file, which lies beside the catalogue and moves along with it. */
class SavedSearchesFile : public SavedSearches
{
    Q_OBJECT

public:
    /**
     * Reads the file, if there is one. What can't be understood counts as empty; it is set aside
     * under the name @p path with ".bak" before it would be written over.
     */
    explicit SavedSearchesFile(const QString &path, QObject *parent = nullptr);

    /** The place of the file for a catalogue file of this path. */
    static QString besideCatalogue(const QString &cataloguePath);

    QList<SavedSearch> all() const override { return m_searches; }

protected:
    void store(const QList<SavedSearch> &searches) override;

private:
    void read();
    void setAside() const;

    QString m_path;
    QList<SavedSearch> m_searches;
    bool m_understood = true;
};
