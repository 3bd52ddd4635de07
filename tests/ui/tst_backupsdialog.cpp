#include "app/application/HooplineApplication.h"
#include "app/frame/GAction.h"
#include "base/GlobalSettings.h"
#include "catalogue/backups/BackupFolder.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/MessageBoxes.h"
#include "ui/BackupsDialog.h"
#include "ui/MainWindow.h"
#include "ui/NoticeBar.h"
#include "ui/NoticeRow.h"

#include <QPointer>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

namespace {

QByteArray catalogueOf(int designs)
{
    return "<hoopline_organizer><files>" +
           QByteArray("<file><tags><string>a</string></tags></file>").repeated(designs) +
           "</files></hoopline_organizer>";
}

QString rowOf(const QTreeWidgetItem *item)
{
    return QStringLiteral("%1|%2|%3").arg(item->text(1), item->text(2), item->text(3));
}

} // namespace

class tst_backupsdialog : public QObject
{
    Q_OBJECT

private slots:
    void listsAndCounts();
    void asksBeforeItRestores_data();
    void asksBeforeItRestores();
    void tellsThatThereAreNone();
    void windowRestoresIt();
};

void tst_backupsdialog::listsAndCounts()
{
    const QTemporaryDir root;
    BackupFolder folder(root.filePath(QStringLiteral("backups")));
    const QDate day(2026, 11, 22);
    folder.keepDay(catalogueOf(3), day);
    folder.keepMoment(catalogueOf(5), QDateTime(day, QTime(14, 3)));
    folder.keepDay("no catalogue", day.addDays(1));
    BackupsDialog dialog(folder, nullptr);
    const auto *list = dialog.findChild<QTreeWidget *>();
    QCOMPARE(list->topLevelItemCount(), 3);
    QTRY_COMPARE(rowOf(list->topLevelItem(2)), QStringLiteral("3|3|0"));
    QCOMPARE(rowOf(list->topLevelItem(1)), QStringLiteral("5|5|0"));
    QCOMPARE(rowOf(list->topLevelItem(0)), QStringLiteral("damaged||"));
    QVERIFY(list->topLevelItem(0)->isDisabled());
    QVERIFY(list->topLevelItem(1)->text(0).contains(QStringLiteral("14:03")) ||
            list->topLevelItem(1)->text(0).contains(QStringLiteral("2:03")));
    QVERIFY(!dialog.findChild<QPushButton *>(QStringLiteral("restore"))->isEnabled());
}

void tst_backupsdialog::asksBeforeItRestores_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("restored");

    QTest::newRow("no") << int(QMessageBox::No) << false;
    QTest::newRow("yes") << int(QMessageBox::Yes) << true;
}

void tst_backupsdialog::asksBeforeItRestores()
{
    QFETCH(int, button);
    QFETCH(bool, restored);
    const QTemporaryDir root;
    BackupFolder folder(root.filePath(QStringLiteral("backups")));
    folder.keepDay(catalogueOf(1), QDate(2026, 11, 22));
    folder.keepDay(catalogueOf(2), QDate(2026, 11, 23));
    BackupsDialog dialog(folder, nullptr);
    MessageBoxes boxes{QMessageBox::StandardButton(button)};
    auto *list = dialog.findChild<QTreeWidget *>();
    QTest::keyClick(list, Qt::Key_Down);
    dialog.findChild<QPushButton *>(QStringLiteral("restore"))->click();
    QCOMPARE(boxes.count(), 1);
    QVERIFY2(boxes.informativeText().contains(BackupsDialog::title({QDate(2026, 11, 22), {}, 1})),
             qPrintable(boxes.informativeText()));
    QCOMPARE(dialog.result() == QDialog::Accepted, restored);
    QCOMPARE(dialog.chosen(), restored ? folder.entries().constLast().path : QString());
}

void tst_backupsdialog::tellsThatThereAreNone()
{
    const QTemporaryDir root;
    const BackupFolder folder(root.filePath(QStringLiteral("backups")));
    BackupsDialog dialog(folder, nullptr);
    QCOMPARE(dialog.findChild<QTreeWidget *>()->topLevelItemCount(), 0);
    QVERIFY(!dialog.findChild<QPushButton *>(QStringLiteral("restore"))->isEnabled());
    QVERIFY(!QFile::exists(folder.path()));
}

void tst_backupsdialog::windowRestoresIt()
{
    const CatalogueFolder folder;
    GSettings().setAutoUpdatesEnabled(false);
    QVERIFY(DstDesign::square().writeTo(folder.design(QStringLiteral("rose.dst"))));
    MainWindow window;
    window.show();
    window.filesDropped({folder.designs()});
    const QByteArray before = CatalogueFolder::read(folder.catalogueFile());
    BackupFolder backups(folder.dataFile(QStringLiteral("backups")));
    backups.keepMoment(before, QDateTime::currentDateTime().addSecs(60));
    QVERIFY(DstDesign::square("Lily").writeTo(folder.design(QStringLiteral("lily.dst"))));
    window.rescanDirectories();
    const QByteArray after = CatalogueFolder::read(folder.catalogueFile());
    QVERIFY(after != before);

    MessageBoxes boxes(QMessageBox::Yes);
    QTimer::singleShot(0, [] {
        auto *dialog = qobject_cast<BackupsDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        dialog->findChild<QPushButton *>(QStringLiteral("restore"))->click();
    });
    window.showBackups();
    QCOMPARE(CatalogueFolder::read(folder.catalogueFile()), before);
    QVERIFY(window.findChild<NoticeBar *>()->isTelling(QStringLiteral("restored")));
    // What was there is the newest but for the one that lies in the future.
    QCOMPARE(BackupFolder::read(backups.entries().at(1).path), after);
}

int main(int argc, char **argv)
{
    Q_INIT_RESOURCE(tnw_resources);
    Q_INIT_RESOURCE(hoopline_resources);
    HooplineApplication application(argc, argv);
    // The window of the start is one of the program's own; it is not what is tested.
    QPointer<MainWindow> first;
    HooplineApplication::setWindowFactory([&first] { return first = new MainWindow; });
    GSettings().setAutoUpdatesEnabled(false);
    GSettings().setCrashLoggerLastCheck(QDateTime::currentDateTime());
    QCoreApplication::processEvents();
    delete first;
    tst_backupsdialog test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_backupsdialog.moc"
