#include "MainWindowTest.h"

#include "app/frame/GAction.h"
#include "catalogue/backups/BackupFolder.h"
#include "support/MessageBoxes.h"
#include "support/Rows.h"
#include "ui/BackupsDialog.h"
#include "ui/NoticeBar.h"
#include "ui/NoticeRow.h"

#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

static QByteArray catalogueOf(int designs)
{
    return "<hoopline_organizer><files>" +
           QByteArray("<file><tags><string>a</string></tags></file>").repeated(designs) +
           "</files></hoopline_organizer>";
}

static QString rowOf(const QTreeWidgetItem *item)
{
    return QStringLiteral("%1|%2|%3").arg(item->text(1), item->text(2), item->text(3));
}

class tst_backupsdialog : public QObject
{
    Q_OBJECT

private slots:
    void listsAndCounts()
    {
        const QTemporaryDir root;
        BackupFolder folder(root.filePath("backups"));
        const QDate day(2026, 11, 22);
        folder.keepDay(catalogueOf(3), day);
        folder.keepMoment(catalogueOf(5), QDateTime(day, QTime(14, 3)));
        folder.keepDay("no catalogue", day.addDays(1));
        BackupsDialog dialog(folder, nullptr);
        const auto *list = dialog.findChild<QTreeWidget *>();
        QCOMPARE(list->topLevelItemCount(), 3);
        QTRY_COMPARE(rowOf(list->topLevelItem(2)), "3|3|0");
        QCOMPARE(rowOf(list->topLevelItem(1)), "5|5|0");
        QCOMPARE(rowOf(list->topLevelItem(0)), "damaged||");
        QVERIFY(list->topLevelItem(0)->isDisabled());
        QVERIFY(list->topLevelItem(1)->text(0).contains("14:03") ||
                list->topLevelItem(1)->text(0).contains("2:03"));
        QVERIFY(!dialog.findChild<QPushButton *>("restore")->isEnabled());
    }

    void asksBeforeItRestores_data()
    {
        const Rows<int, bool> row("button", "restored");

        row("no", int(QMessageBox::No), false);
        row("yes", int(QMessageBox::Yes), true);
    }

    void asksBeforeItRestores()
    {
        QFETCH(int, button);
        QFETCH(bool, restored);
        const QTemporaryDir root;
        BackupFolder folder(root.filePath("backups"));
        folder.keepDay(catalogueOf(1), QDate(2026, 11, 22));
        folder.keepDay(catalogueOf(2), QDate(2026, 11, 23));
        BackupsDialog dialog(folder, nullptr);
        MessageBoxes boxes{QMessageBox::StandardButton(button)};
        auto *list = dialog.findChild<QTreeWidget *>();
        QTest::keyClick(list, Qt::Key_Down);
        dialog.findChild<QPushButton *>("restore")->click();
        QCOMPARE(boxes.count(), 1);
        QVERIFY2(
            boxes.informativeText().contains(BackupsDialog::title({QDate(2026, 11, 22), {}, 1})),
            qPrintable(boxes.informativeText()));
        QCOMPARE(dialog.result() == QDialog::Accepted, restored);
        QCOMPARE(dialog.chosen(), restored ? folder.entries().constLast().path : QString());
    }

    void tellsThatThereAreNone()
    {
        const QTemporaryDir root;
        const BackupFolder folder(root.filePath("backups"));
        BackupsDialog dialog(folder, nullptr);
        QCOMPARE(dialog.findChild<QTreeWidget *>()->topLevelItemCount(), 0);
        QVERIFY(!dialog.findChild<QPushButton *>("restore")->isEnabled());
        QVERIFY(!QFile::exists(folder.path()));
    }

    void windowRestoresIt()
    {
        const CatalogueFolder folder;
        GSettings().setAutoUpdatesEnabled(false);
        QVERIFY(DstDesign::square().writeTo(folder.design("rose.dst")));
        MainWindow window;
        window.show();
        window.filesDropped({folder.designs()});
        const QByteArray before = CatalogueFolder::read(folder.catalogueFile());
        BackupFolder backups(folder.dataFile("backups"));
        backups.keepMoment(before, QDateTime::currentDateTime().addSecs(60));
        QVERIFY(DstDesign::square("Lily").writeTo(folder.design("lily.dst")));
        window.rescanDirectories();
        const QByteArray after = CatalogueFolder::read(folder.catalogueFile());
        QVERIFY(after != before);

        MessageBoxes boxes(QMessageBox::Yes);
        QTimer::singleShot(0, [] {
            auto *dialog = qobject_cast<BackupsDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->findChild<QPushButton *>("restore")->click();
        });
        window.showBackups();
        QCOMPARE(CatalogueFolder::read(folder.catalogueFile()), before);
        QVERIFY(window.findChild<NoticeBar *>()->isTelling("restored"));
        // What was there is the newest but for the one that lies in the future.
        QCOMPARE(BackupFolder::read(backups.entries().at(1).path), after);
    }
};

int main(int argc, char **argv)
{
    return MainWindowTest::run<tst_backupsdialog>(argc, argv);
}

#include "tst_backupsdialog.moc"
