#include "MainWindowTest.h"

#include "app/frame/GAction.h"
#include "catalogue/records/IFile.h"
#include "catalogue/userdata/RememberedData.h"
#include "catalogue/userdata/UserDataMemory.h"
#include "preview/grid/GridPreviewScene.h"
#include "support/FullDisk.h"
#include "support/MessageBoxes.h"
#include "support/Rows.h"
#include "ui/CatalogueKeeper.h"
#include "ui/NoticeBar.h"
#include "ui/NoticeRow.h"
#include "ui/ProgressDialog.h"

#include <QtTest>
#include <QtWidgets>

/** The window's part in getting the catalogue to the disk and back. */
class tst_cataloguekeeping : public MainWindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        makeProfile();
        open();
        m_window->filesDropped({makeFolder("designs", {"rose.dst"})});
        // What the scan did is another matter.
        part<NoticeBar>()->withdraw("scan");
        changeState(Qt::ApplicationActive);
    }

    void cleanup() { delete m_window; }

    void tellsAFailedSaveUntilItWorks()
    {
        const QByteArray before = saved();
        edit();
        {
            const FullDisk disk;
            changeState(Qt::ApplicationInactive);
            changeState(Qt::ApplicationActive);
            changeState(Qt::ApplicationInactive);
            QTRY_COMPARE(told(), QStringList(QStringLiteral(
                                     "Your last changes could not be saved: File too large")));
        }
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(saved(), before);
        changeState(Qt::ApplicationInactive);
        QTRY_VERIFY(told().isEmpty());
        QVERIFY(saved().contains("<is_favorite>true"));
    }

    void savesBesideTheWindow()
    {
        const QSharedPointer<IFile> rose = part<GridPreviewScene>()->fileAt(0);
        rose->setNotes("sewn once");
        changeState(Qt::ApplicationInactive);
        // Another edit and the user's return before the file is there.
        rose->setNotes("sewn twice");
        changeState(Qt::ApplicationInactive);
        changeState(Qt::ApplicationActive);
        QTRY_VERIFY(saved().contains("sewn twice"));
        QVERIFY(told().isEmpty());
        QCOMPARE(QFileInfo(catalogueFile()).dir().entryList({"*-2*.xml"}), QStringList());
        // The end waits for it.
        rose->setNotes("sewn thrice");
        changeState(Qt::ApplicationInactive);
        QVERIFY(m_window->closeWindow());
        QVERIFY(saved().contains("sewn thrice"));
    }

    void triesAgainByItself()
    {
        edit();
        keeper()->setRetryInterval(std::chrono::milliseconds(1));
        {
            const FullDisk disk;
            changeState(Qt::ApplicationInactive);
            QTest::qWait(20);
            QTRY_COMPARE(told().size(), 1);
        }
        QTRY_VERIFY(told().isEmpty());
        QVERIFY(saved().contains("<is_favorite>true"));
    }

    void triesAgainOnDemand()
    {
        edit();
        {
            const FullDisk disk;
            changeState(Qt::ApplicationInactive);
            QTRY_COMPARE(told().size(), 1);
            QTest::mouseClick(button("Try again"), Qt::LeftButton);
            QVERIFY(keeper()->saveAnyway() == false);
            QCOMPARE(told().size(), 1);
        }
        QTest::keyClick(button("Try again"), Qt::Key_Return);
        QTRY_VERIFY(told().isEmpty());
        QVERIFY(saved().contains("<is_favorite>true"));
    }

    void tellsOfAnUnreadableCatalogueUntilItWorks()
    {
        const QByteArray newer = "<hoopline_organizer version='9.0'/>";
        const QByteArray before = saved();
        QVERIFY(put(newer));
        changeState(Qt::ApplicationActive);
        changeState(Qt::ApplicationActive);
        QCOMPARE(told().size(), 1);
        QVERIFY2(told().first().contains("newer version"), qPrintable(told().first()));
        // What can't be read is not replaced either.
        edit();
        changeState(Qt::ApplicationInactive);
        QCOMPARE(told().size(), 2);
        QCOMPARE(saved(), newer);

        QVERIFY(put(before));
        keeper()->setRetryInterval(std::chrono::milliseconds(1));
        changeState(Qt::ApplicationActive);
        QCOMPARE(told().size(), 1);
        QVERIFY2(told().first().contains("kept as hoopline-organizer-20"),
                 qPrintable(told().first()));
    }

    void healsADamagedCatalogue()
    {
        QVERIFY(put(saved().chopped(20)));
        keeper()->setRetryInterval(std::chrono::milliseconds(1));
        changeState(Qt::ApplicationActive);
        QCOMPARE(told().size(), 1);
        QTRY_VERIFY(saved().endsWith("</hoopline_organizer>\n"));
        QVERIFY(saved().contains("rose.dst"));
        QVERIFY2(told().value(0).contains("kept as hoopline-organizer.damaged-"),
                 qPrintable(told().value(0)));
    }

    void tellsWhatItKept()
    {
        delete m_window;
        QVERIFY(put(saved().chopped(20)));
        open();
        QCOMPARE(told().size(), 1);
        QVERIFY2(told().first().contains("1 design(s) could be taken over"),
                 qPrintable(told().first()));
        QCOMPARE(QFileInfo(catalogueFile()).dir().entryList({"*.damaged-*.xml"}).size(), 1);
    }

    void tellsThatItsFolderWasMissing()
    {
        delete m_window;
        const QString folder = path("drive/hoopline");
        GlobalSettings().setApplicationDataPath(folder);
        open();
        QCOMPARE(told().size(), 1);
        QVERIFY2(told().first().contains(folder), qPrintable(told().first()));
        delete m_window;
        open();
        QVERIFY(told().isEmpty());
    }

    void tellsOfAFailedSaveAfterAScan()
    {
        const QString more = makeFolder("more", {"leaf.dst"});
        // The catalogue cannot be written where a folder has its name.
        QVERIFY(QFile::remove(catalogueFile()) && QDir().mkpath(catalogueFile() + "/x"));
        m_window->filesDropped({more});
        QCOMPARE(told().size(), 2);
        QVERIFY(!part<ProgressDialog>()->isVisible());
        QVERIFY(QDir(catalogueFile()).removeRecursively());
        changeState(Qt::ApplicationInactive);
        QTRY_COMPARE(told(), QStringList("1 new"));
        QVERIFY(saved().contains("leaf.dst"));
    }

    void savesACopy()
    {
        const QString copy = path("copy.xml");
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
                dialog->selectFile(copy);
                QTest::keyClick(dialog, Qt::Key_Return);
            }
        });
        timer.start(10);
        QVERIFY(put("<hoopline_organizer version='9.0'/>"));
        edit();
        changeState(Qt::ApplicationInactive);
        QTRY_COMPARE(told().size(), 1);
        QTest::mouseClick(button("Save a copy..."), Qt::LeftButton);
        QFile file(copy);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("<is_favorite>true"));
        QCOMPARE(told().size(), 1);
    }

    void keepsSavedSearchesUntilThereIsRoom()
    {
        {
            const FullDisk disk;
            m_window->memory()->remembered()->searches()->add({"a", "1"});
            QTRY_COMPARE(told().size(), 1);
            QVERIFY(told().constFirst().startsWith("Saved searches cannot be saved: "));
            const MessageBoxes boxes(QStringList("Cancel"));
            QVERIFY(!m_window->closeWindow());
            QCOMPARE(boxes.count(), 1);
        }
        QTest::mouseClick(button("Try again"), Qt::LeftButton);
        QTRY_VERIFY(told().isEmpty());
        delete m_window;
        open();
        QCOMPARE(m_window->memory()->remembered()->searches()->all().size(), 1);
    }

    void asksAtTheEnd_data()
    {
        const Rows<QStringList, bool, bool> row("answers", "closes", "saves");
        row("tries again", {"Try again", "Try again"}, true, true);
        row("stays", {"Cancel"}, false, false);
        row("has no place for a copy", {"Save a copy...", "Cancel"}, false, false);
        row("gives up", {"Quit without saving"}, true, false);
    }

    void asksAtTheEnd()
    {
        QFETCH(QStringList, answers);
        QFETCH(bool, closes);
        edit();
        QVERIFY(QFile::rename(catalogueFile(), catalogueFile() + ".before"));
        QVERIFY(QDir().mkpath(catalogueFile() + "/x"));
        int given = 0;
        const MessageBoxes boxes(answers, [&] {
            // The first answer comes too early.
            if (++given == 2)
                QDir(catalogueFile()).removeRecursively();
        });
        QTimer noPlace;
        connect(&noPlace, &QTimer::timeout, this, [] {
            if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget()))
                dialog->reject();
        });
        noPlace.start(10);
        QCOMPARE(m_window->closeWindow(), closes);
        QCOMPARE(boxes.count(), answers.size());
        QTRY_COMPARE(m_window.isNull(), closes);
        QTEST(saved().contains("<is_favorite>true"), "saves");
        if (!closes) {
            QCOMPARE(told().size(), 1);
            QVERIFY(QDir(catalogueFile()).removeRecursively());
            QVERIFY(m_window->close());
            QTRY_VERIFY(!m_window);
            QVERIFY(saved().contains("<is_favorite>true"));
        }
    }

    void savesForTheEndOfTheSession()
    {
        edit();
        {
            const FullDisk disk;
            QVERIFY(!m_window->saveForSessionEnd());
        }
        QVERIFY(m_window->saveForSessionEnd());
        QVERIFY(saved().contains("<is_favorite>true"));
        // It may be called off: the window goes on.
        QVERIFY(m_window->isVisible());
        QVERIFY(told().isEmpty());
    }

    void waitsForTheEndOfAScan()
    {
        edit();
        bool looked = false;
        const auto *progress = part<QProgressBar>();
        connect(progress, &QProgressBar::valueChanged, m_window, [&] {
            if (looked)
                return;
            looked = true;
            // The records are on their way.
            QVERIFY(put("<hoopline_organizer/>"));
            changeState(Qt::ApplicationActive);
            QVERIFY(!m_window->closeWindow());
            m_window->cancelWork();
        });
        const QString more = makeFolder("more", {"leaf.dst"});
        m_window->filesDropped({more});
        QVERIFY(looked);
        QVERIFY(!m_window->isBusy());
        QVERIFY(saved().contains("rose.dst"));
        QVERIFY(m_window->closeWindow());
    }

private:
    /** The star of the one design, by its key. */
    void edit()
    {
        auto *grid = part<QGraphicsView>();
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(grid, Qt::Key_F);
    }

    /** As the system tells it: not by an event, so that no event handler stands around it. */
    void changeState(Qt::ApplicationState state) { emit qApp->applicationStateChanged(state); }

    QByteArray saved() const { return CatalogueFolder::read(catalogueFile()); }

    /** Another program's file, later than the one that it replaces. */
    bool put(const QByteArray &bytes)
    {
        const QDateTime date = QFileInfo(catalogueFile()).lastModified().addSecs(5);
        QFile file(catalogueFile());
        return file.remove() && file.open(QIODevice::WriteOnly) &&
               file.write(bytes) == bytes.size() && file.flush() &&
               file.setFileTime(date, QFileDevice::FileModificationTime);
    }

    QStringList told() const
    {
        QStringList texts;
        const auto rows = m_window->findChildren<NoticeRow *>();
        for (const NoticeRow *row : rows) {
            if (row->isVisible())
                texts.append(row->text());
        }
        return texts;
    }

    QPushButton *button(const QString &text) const
    {
        const auto buttons = part<NoticeBar>()->findChildren<QPushButton *>();
        for (QPushButton *candidate : buttons) {
            if (candidate->isVisible() && candidate->text() == text)
                return candidate;
        }
        qFatal("no button %s", qPrintable(text));
    }

    CatalogueKeeper *keeper() const { return part<CatalogueKeeper>(); }
};

int main(int argc, char **argv)
{
    return MainWindowTest::run<tst_cataloguekeeping>(argc, argv);
}

#include "tst_cataloguekeeping.moc"
