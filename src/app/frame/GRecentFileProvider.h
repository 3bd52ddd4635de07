#pragma once

#include <QList>
#include <QObject>
#include <QStringList>

class GAction;
class QMenu;

/**
 * Offers the files opened last as five actions. A change made through one
 * provider shows in all of them. Main thread only.
 */
class GRecentFileProvider : public QObject
{
    Q_OBJECT

public:
    explicit GRecentFileProvider(QObject *parent = nullptr);
    ~GRecentFileProvider() override;

    /** The file opened last; empty when there is none. */
    QString lastFileName() const;

    /** The five actions, hidden ones included; they stay ours. */
    QList<GAction *> recentFileActions() const;

    /** Asks for the most recent file that still exists. */
    void openLastFile();

    /** Remembers @p name, when such a file exists. */
    void addToRecentFiles(const QString &name);

    /** Shows the first five of @p names. */
    void updateRecentFileActions(const QStringList &names);

    /** Adds the actions to @p menu and fills them from the settings. */
    void addRecentMenuActions(QMenu *menu);

    static QStringList removeNonExistingFiles(const QStringList &names);

public slots:
    void openRecentFile();

signals:
    void loadFile(QString name);
    void fileListRefreshed();

private:
    static QList<GRecentFileProvider *> mRecentFileProviders;

    QList<GAction *> m_actions;
};
