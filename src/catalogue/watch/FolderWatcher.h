#pragma once

#include "base/threads/Mailbox.h"

#include <memory>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

class QSocketNotifier;
struct FolderEvent;

/**
 * Knows which smart folders have changed since they were scanned, as far as the system tells
 * while the program runs. Only designs count, and folders with designs. No call here waits for
 * a disk: what asks one does so on a thread that nobody waits for.
 *
 * Folders that lie elsewhere on the network are not watched, since the system does not hear
 * what others do there. With more folders than the system watches, only the upper ones are.
 */
class FolderWatcher : public QObject
{
    Q_OBJECT

public:
    explicit FolderWatcher(QObject *parent = nullptr);
    ~FolderWatcher() override;

    /** Watches these smart folders, absolute paths, in the place of those before. */
    void setFolders(const QStringList &folders);

    /** Watches those that were not there before, for instance on a drive that came back. */
    void lookAgain();

    /** How long changes are gathered until they are told, in milliseconds. */
    void setDelay(int delay) { m_timer.setInterval(delay); }

    /** The smart folders that have changed, in their order. */
    QStringList changedFolders() const;

    /** A scan begins and sees all that has changed so far. Nothing is told until it ends. */
    void beginScan();
    /** @param complete whether it has seen all folders */
    void endScan(bool complete);

    /**
     * What becomes of these files, absolute paths, is the program's own doing, which the
     * catalogue learns anyway; it is not told, until expectNothing().
     */
    void expect(const QStringList &files);
    void expectNothing();

signals:
    /** Other folders than before have changed, or none any more. */
    void changedFoldersChanged();
    /** Folders are looked through for what is to be watched, or none any more. */
    void lookingThrough(bool isLooking);
    /** All that can be watched of @p folder is watched now. */
    void folderWatched(const QString &folder);

private:
    struct Shared;
    enum Telling { Tell, Quiet };

    void watch(const QString &folder);
    void readEvents();
    void take(const FolderEvent &event);
    void noteChange(const QByteArray &path);
    void startTimer();
    void walkNewFolders(Telling telling);
    void tell();

    std::shared_ptr<Shared> m_shared;
    QSocketNotifier *m_notifier = nullptr;
    QTimer m_timer;
    QStringList m_folders;
    QSet<QString> m_beingWalked;
    QList<QByteArray> m_newFolders;
    QSet<QByteArray> m_expected;
    QSet<QString> m_changed;
    QSet<QString> m_seenByScan;
    QSet<QString> m_told;
    bool m_scanning = false;
    Mailbox m_mailbox{this};
};
