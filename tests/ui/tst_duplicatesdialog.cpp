#include "AccessibleWalk.h"
#include "support/CatalogueFolder.h"
#include "support/MessageBoxes.h"

#include "catalogue/records/Project.h"
#include "ui/duplicates/DuplicatesDialog.h"

#include <QListView>
#include <QPushButton>
#include <QtTest>

/** Real designs in a real folder; the trash is a private one. */
class TestDuplicatesDialog : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<CatalogueFolder>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder->dataFile("share")));
        QVERIFY(QDir().mkpath(m_folder->dataFile("share")));
        m_project = QSharedPointer<Project>::create();
        add("Flowers/rose.pes", "again.pes");
        add("Flowers/rose.dst", "rose.dst");
        add("Flowers/rose.pes", "rose.pes");
        add("Shapes/star.pes", "star.pes");
        m_saves = 0;
        m_save = [this] { return ++m_saves > 0; };
    }

    void cleanup()
    {
        m_dialog.reset();
        m_project.reset();
    }

    void keepsWhatTheKeysChoose()
    {
        const auto files = m_project->files();
        files.at(0)->setTags({"flowers"});
        files.at(1)->setNotes("For Anna");
        files.at(2)->setFavorite(true);
        QVERIFY(open());
        QCOMPARE(rowText("groups", 0), "again\n2 file(s), same content");
        QCOMPARE(rowText("groups", 1), "again\n3 file(s), same stitches");

        QTest::keyClick(view("groups"), Qt::Key_Down);
        QCOMPARE(view("members")->model()->rowCount(), 3);
        QTest::keyClick(view("members"), Qt::Key_Home);
        QTest::keyClick(view("members"), Qt::Key_Right);
        QCOMPARE(view("members")->currentIndex().data().toString(), "rose.dst");
        MessageBoxes boxes(QMessageBox::Yes);
        pressClear();

        QTRY_COMPARE(m_project->files().size(), 2);
        QCOMPARE(boxes.count(), 1);
        QVERIFY(boxes.informativeText().contains(m_folder->design("again.pes")));
        QVERIFY(boxes.informativeText().contains(m_folder->design("rose.dst")));
        QVERIFY(!isThere("again.pes") && !isThere("rose.pes"));
        QVERIFY(isThere("rose.dst") && isThere("star.pes"));
        QCOMPARE(QDir(m_folder->dataFile("share/Trash/files")).entryList(QDir::Files),
                 QStringList({"again.pes", "rose.pes"}));
        QCOMPARE(files.at(1)->tags(), QStringList("flowers"));
        QCOMPARE(files.at(1)->notes(), "For Anna");
        QVERIFY(files.at(1)->isFavorite());
        // Once before any file is touched, once when they have gone.
        QCOMPARE(m_saves, 2);
        QCOMPARE(view("groups")->model()->rowCount(), 0);
        QCOMPARE(view("members")->model()->rowCount(), 0);
    }

    void proposesTheOneWithWords()
    {
        m_project->files().at(2)->setTags({"flowers"});
        QVERIFY(open());
        QCOMPARE(view("members")->currentIndex().data().toString(), "rose.pes");

        MessageBoxes boxes(QMessageBox::Yes);
        pressClear();

        QTRY_COMPARE(m_project->files().size(), 3);
        QVERIFY(isThere("rose.pes") && !isThere("again.pes"));
        // What is left of the other group is shown now.
        QCOMPARE(view("groups")->model()->rowCount(), 1);
        QCOMPARE(rowText("groups", 0), "rose\n2 file(s), same stitches");
        QCOMPARE(view("members")->model()->rowCount(), 2);
    }

    void asksFirst()
    {
        QVERIFY(open());
        MessageBoxes boxes(QMessageBox::No);
        pressClear();
        QCOMPARE(boxes.count(), 1);
        QVERIFY(isThere("again.pes") && isThere("rose.pes"));
        QCOMPARE(m_saves, 0);
        QVERIFY(view("groups")->isEnabled());
    }

    void movesNothingThatIsNotSaved()
    {
        QVERIFY(open());
        MessageBoxes boxes(QMessageBox::Yes);
        m_save = [&boxes] {
            boxes.press(QMessageBox::Ok);
            return false;
        };
        pressClear();
        QCOMPARE(boxes.count(), 2);
        QCOMPARE(boxes.text(), "No file was moved.");
        QVERIFY(isThere("again.pes") && isThere("rose.pes"));
        QCOMPARE(m_project->files().size(), 4);
    }

    /** Somebody else has written the catalogue, and it was read again. */
    void movesNothingOfAnotherCatalogue()
    {
        QVERIFY(open());
        auto files = m_project->files();
        files.removeFirst();
        m_project->setFiles(files);
        MessageBoxes boxes(QMessageBox::Ok);
        pressClear();
        QCOMPARE(boxes.count(), 1);
        QVERIFY(isThere("again.pes") && isThere("rose.pes"));
        QCOMPARE(m_saves, 0);
    }

    void tellsWhatStayed()
    {
        QVERIFY(open());
        QVERIFY(CatalogueFolder::write(m_folder->design("again.pes"), "another"));
        MessageBoxes boxes(QMessageBox::Yes);
        m_save = [&boxes] {
            boxes.press(QMessageBox::Ok);
            return true;
        };
        pressClear();
        QTRY_COMPARE(boxes.count(), 2);
        QVERIFY(boxes.informativeText().contains("has changed since the last scan"));
        QVERIFY(isThere("again.pes") && isThere("rose.pes"));
        QCOMPARE(m_project->files().size(), 4);
        QTRY_VERIFY(view("groups")->isEnabled());
    }

    void endsTheSearchWithEscape()
    {
        m_dialog = std::make_unique<DuplicatesDialog>(nullptr, m_project, m_save);
        m_dialog->show();
        QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
        QVERIFY(!m_dialog->isVisible());
        m_dialog.reset();
        QVERIFY(isThere("again.pes"));
    }

    void speaksToScreenReaders()
    {
        QVERIFY(open());
        QCOMPARE(AccessibleWalk::faults(m_dialog.get()), QStringList());
    }

private:
    QSharedPointer<IFile> add(const QString &sample, const QString &name)
    {
        const QByteArray bytes = CatalogueFolder::read(QStringLiteral(SAMPLES_DIR "/") + sample);
        if (!CatalogueFolder::write(m_folder->design(name), bytes))
            qFatal("cannot write %s", qPrintable(name));
        const auto file = QSharedPointer<File>::create(m_project.data());
        file->setAbsoluteFilePath(m_folder->design(name));
        file->setContentHash(QCryptographicHash::hash(bytes, QCryptographicHash::Md5));
        m_project->filesProp()->addSharedWithoutUndo(file);
        return file;
    }

    /** Returns when all is found. */
    bool open()
    {
        m_dialog =
            std::make_unique<DuplicatesDialog>(nullptr, m_project, [this] { return m_save(); });
        m_dialog->show();
        return QTest::qWaitForWindowActive(m_dialog.get()) && QTest::qWaitFor([this] {
                   return view("groups")->isVisible() && view("groups")->model()->rowCount() == 2;
               });
    }

    QListView *view(const char *name) const
    {
        return m_dialog->findChild<QListView *>(QLatin1String(name));
    }
    QString rowText(const char *name, int row) const
    {
        return view(name)->model()->index(row, 0).data().toString();
    }

    void pressClear() { QTest::mouseClick(buttonOf(*m_dialog, "Keep"), Qt::LeftButton); }

    bool isThere(const QString &name) const { return QFile::exists(m_folder->design(name)); }

    std::unique_ptr<CatalogueFolder> m_folder;
    QSharedPointer<Project> m_project;
    std::unique_ptr<DuplicatesDialog> m_dialog;
    std::function<bool()> m_save;
    int m_saves = 0;
};

QTEST_MAIN(TestDuplicatesDialog)
#include "tst_duplicatesdialog.moc"
