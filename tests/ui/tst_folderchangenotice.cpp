#include "catalogue/records/Project.h"
#include "support/Rows.h"
#include "ui/FolderChangeNotice.h"
#include "ui/NoticeBar.h"
#include "ui/NoticeRow.h"

#include <QPushButton>
#include <QtTest>

class tst_folderchangenotice : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhichHaveChanged_data()
    {
        const Rows<QStringList, QString> row("changed", "told");
        row("one", {"Roses"}, "The folder Roses has changed.");
        row("two", {"Roses", "Christmas %1"}, "The folders Roses and Christmas %1 have changed.");
        row("three", {"Roses", "Christmas %1", "a/Sport"},
            "The folders Roses, Christmas %1 and Sport have changed.");
        row("same name", {"a/Sport", "b/Sport"},
            "The folders %1/a/Sport and %1/b/Sport have changed.");
        row("many", {"Roses", "Christmas %1", "a/Sport", "b/Sport"}, "4 folders have changed.");
    }

    void tellsWhichHaveChanged()
    {
        QFETCH(QStringList, changed);
        QFETCH(QString, told);
        const QTemporaryDir directory;
        const auto project = QSharedPointer<Project>::create();
        NoticeBar bar;
        int rescans = 0;
        FolderChangeNotice notice(
            project, &bar, [&] { ++rescans; }, nullptr);
        notice.watcher()->setDelay(0);

        QStringList folders;
        for (const char *name : {"Roses", "Christmas %1", "a/Sport", "b/Sport"}) {
            folders.append(directory.filePath(QString::fromLatin1(name)));
            QDir().mkpath(folders.last());
        }
        QSignalSpy watched(notice.watcher(), &FolderWatcher::folderWatched);
        project->setSmartFolders(folders, "add directory");
        while (watched.count() < folders.size())
            QVERIFY2(watched.wait(), "The system watches no folders.");

        notice.watcher()->beginScan();
        for (const QString &name : changed) {
            QFile file(directory.filePath(name + "/new.pes"));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        // The system tells at once, and the watcher hears of it when events are read.
        QCoreApplication::processEvents();
        QVERIFY(bar.findChildren<NoticeRow *>().isEmpty());
        notice.watcher()->endScan(true);
        const auto *row = bar.findChild<NoticeRow *>();
        QVERIFY(row);
        told.replace("%1/", directory.path() + QLatin1Char('/'));
        QCOMPARE(row->text(), told);
        row->findChild<QPushButton *>()->click();
        QCOMPARE(rescans, 1);
    }

    void watchesADriveThatWasPluggedIn()
    {
        const QTemporaryDir directory;
        const auto project = QSharedPointer<Project>::create();
        project->setSmartFolders({directory.filePath("drive")}, QString());
        NoticeBar bar;
        FolderChangeNotice notice(
            project, &bar, [] {}, nullptr);
        QSignalSpy watched(notice.watcher(), &FolderWatcher::folderWatched);
        QVERIFY(watched.wait());
        QVERIFY(QDir(directory.path()).mkpath("drive"));
        emit qApp->applicationStateChanged(Qt::ApplicationActive);
        QVERIFY(watched.wait());
    }
};

QTEST_MAIN(tst_folderchangenotice)
#include "tst_folderchangenotice.moc"
