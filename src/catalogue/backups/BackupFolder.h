#pragma once

#include "catalogue/backups/BackupName.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QVector>

/**
 * The folder of the backups of a catalogue, beside it: compressed, for the user alone. Knows
 * bytes and dates, not what the bytes say. Touches nothing until it is asked to. Throws Error
 * for what the disk refuses; any thread, but one at a time.
 */
class BackupFolder
{
    Q_DECLARE_TR_FUNCTIONS(BackupFolder)

public:
    struct Entry
    {
        BackupName name;
        QString path;
    };

    explicit BackupFolder(const QString &path);

    /** That of the catalogue in the file @p catalogue. */
    static QString pathBeside(const QString &catalogue);

    QString path() const { return m_path; }

    /** What is there, the newest first; empty while there is no folder. */
    QVector<Entry> entries() const;

    /** Whether there is the backup of that day already. */
    bool hasDay(const QDate &day) const;

    /**
     * Keeps the catalogue as it was before the first save of @p day; clears outdated ones.
     * @param searches what is saved beside the catalogue; empty for nothing
     */
    void keepDay(const QByteArray &catalogue, const QDate &day, const QByteArray &searches = {});

    /**
     * Keeps a catalogue that has to give way, and clears outdated ones. Returns the path;
     * bytes that the newest backup holds already are not kept twice.
     */
    QString keepMoment(const QByteArray &catalogue, const QDateTime &now,
                       const QByteArray &searches = {});

    /** The catalogue in a file: a backup of whatever name, or a copy that is not compressed. */
    static QByteArray read(const QString &path);

    /** Where the saved searches lie that go with the catalogue in the file @p path. */
    static QString searchesBeside(const QString &path);

    /** Those searches; empty when there are none, or none that can be read. */
    static QByteArray readSearches(const QString &path);

private:
    void write(const BackupName &name, const QByteArray &catalogue, const QByteArray &searches);
    void clear(const QDate &today);
    bool isNewest(const QByteArray &catalogue) const;
    QString pathOf(const BackupName &name) const;

    QString m_path;
};
