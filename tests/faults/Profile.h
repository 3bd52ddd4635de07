#pragma once

#include <QByteArray>
#include <QMap>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/**
 * The settings, data and temporary files of one user, below the folder of the test; what lies
 * in disk/ is on the disk that can fail. All users share the designs there. Any thread but for
 * what parses a catalogue.
 */
class Profile
{
public:
    /** What people wrote to each design, by the name of its file. */
    using Words = QMap<QString, QString>;

    /** Makes the folders and the settings. */
    Profile(const QString &root, const QString &name);

    QString disk() const { return m_root + QStringLiteral("/disk"); }
    QString designs() const { return disk() + QStringLiteral("/designs"); }
    QString data(const QString &name = QString()) const;
    QString catalogueFile() const { return data(QStringLiteral("hoopline-organizer.xml")); }
    QString planFile() const { return m_temporary + QStringLiteral("/plan"); }

    /** For a process of this user. */
    QProcessEnvironment environment() const;

    /** Takes over the data of the other user. */
    bool copyFrom(const Profile &other) const;

    QByteArray catalogue() const { return read(catalogueFile()); }

    /** Main thread. Throws Error when it is no whole catalogue. */
    static Words wordsIn(const QByteArray &catalogue);

    /**
     * All files on the disk but the designs, the backups and what lies beside the settings,
     * hidden ones too, below the folder of the user.
     */
    QStringList files() const;

    /** The bytes of all previews, by the names of the files. */
    QMap<QString, QByteArray> previews() const;

    static QByteArray read(const QString &path);
    static bool write(const QString &path, const QByteArray &bytes);

private:
    QString settingsFile() const;

    QString m_root;
    QString m_home;
    QString m_temporary;
};
