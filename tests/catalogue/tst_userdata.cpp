#include "base/Error.h"
#include "catalogue/records/IFile.h"
#include "catalogue/sync/ProjectController.h"
#include "catalogue/userdata/UserDataDatabase.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/Rows.h"

#include <cstdio>
#include <functional>
#include <memory>
#include <QtTest>

constexpr int PatienceMs = 20000;

/** What the design at @p path bears in one line, or "-". */
static QString wordsOf(const ProjectController &controller, const QString &path)
{
    const auto files = controller.project()->files();
    for (const auto &file : files) {
        if (file->absoluteFilePath() == path)
            return QStringLiteral("%1|%2|%3")
                .arg(file->tags().join(QLatin1Char(',')), file->notes(),
                     file->isFavorite() ? "*" : "");
    }
    return "-";
}

using Change = std::function<QByteArray(const QByteArray &)>;
Q_DECLARE_METATYPE(Change)

class UserDataTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<CatalogueFolder>();
        draw("a.dst", 100);
        draw("b.dst", 110);
        start();
        m_controller->addDirectories({m_folder->designs()});
        QCOMPARE(m_controller->project()->files().size(), 2);
        edit("b.dst", "early", "first", false);
        m_controller->project()->addTag("early");
        m_controller->saveProjectIfModified();
    }

    void cleanup()
    {
        m_controller.reset();
        m_folder.reset();
    }

    void killedProgramLosesNothing()
    {
        const QByteArray saved = CatalogueFolder::read(m_folder->catalogueFile());
        editAndKill();
        QCOMPARE(CatalogueFolder::read(m_folder->catalogueFile()), saved);
        // However often it ends before it could save.
        for (int i = 0; i < 2; ++i) {
            restart();
            QCOMPARE(words("a.dst"), "late,\"quoted\"\n|written last|*");
            QCOMPARE(words("b.dst"), "|first|");
            QVERIFY(m_controller->project()->allTags().contains("late"));
            QVERIFY(m_controller->isModified());
            QVERIFY(m_controller->hasRecoveredEdits());
        }
        m_controller->saveProjectIfModified();
        restart();
        QVERIFY(!m_controller->isModified());
        QVERIFY(!m_controller->hasRecoveredEdits());
        QCOMPARE(words("a.dst"), "late,\"quoted\"\n|written last|*");
    }

    void catalogueOfOthersWins()
    {
        editAndKill();
        QByteArray other = CatalogueFolder::read(m_folder->catalogueFile());
        other.replace("first", "by hand");
        QVERIFY(CatalogueFolder::write(m_folder->catalogueFile(), other));
        restart();
        QCOMPARE(words("a.dst"), "||");
        QCOMPARE(words("b.dst"), "early|by hand|");
        QVERIFY(!m_controller->isModified());
        // And it is what is remembered from now on.
        QVERIFY(loseCatalogue());
        restart();
        m_controller->scanSmartFolders();
        QCOMPARE(words("a.dst"), "||");
        QCOMPARE(words("b.dst"), "early|by hand|");
    }

    void failedSaveLeavesEditsUnsaved()
    {
        edit("a.dst", "late", "typed", true);
        endWithoutSave([this] { m_controller->saveProjectIfModified(); });
        start();
        QCOMPARE(words("a.dst"), "late|typed|*");
    }

    void failedSaveOfMovedDesigns()
    {
        edit("a.dst", "late", "typed", true);
        QVERIFY(QFile::rename(path("a.dst"), path("moved.dst")));
        QVERIFY(QFile::rename(path("b.dst"), path("../b.dst")));
        endWithoutSave([this] { m_controller->scanSmartFolders(); });
        start();
        // The catalogue knows the old places only, and nothing of them is absent.
        QCOMPARE(words("a.dst"), "late|typed|*");
        QCOMPARE(words("b.dst"), "early|first|");
        QCOMPARE(m_controller->memory()->absentDesigns(), 0);
        m_controller->scanSmartFolders();
        QCOMPARE(words("moved.dst"), "late|typed|*");
        QCOMPARE(m_controller->memory()->absentDesigns(), 1);
    }

    void failedSaveBesideLeavesEditsUnsaved()
    {
        const QString data = QFileInfo(m_folder->catalogueFile()).path();
        edit("a.dst", "late", "typed", true);
        QVERIFY(QDir().rename(data, data + " unplugged"));
        m_controller->beginSave([] {});
        QVERIFY_EXCEPTION_THROWN(m_controller->finishSave(), Error);
        QVERIFY(QDir().rename(data + " unplugged", data));
        restart();
        QCOMPARE(words("a.dst"), "late|typed|*");
        QVERIFY(m_controller->isModified());
        // One that succeeds leaves nothing to be brought back.
        m_controller->beginSave([] {});
        m_controller->finishSave();
        restart();
        QCOMPARE(words("a.dst"), "late|typed|*");
        QVERIFY(!m_controller->isModified());
    }

    void designsGetBackWhatWasWritten_data()
    {
        const Rows<QString, QString, QString, bool> row("from", "to", "finallyAt", "catalogueLost");

        row("gone for one scan", "b.dst", "../hidden.dst", "b.dst", false);
        row("back under another name", "b.dst", "../hidden.dst", "c.dst", false);
        row("lost catalogue", "", "", "b.dst", true);
        row("lost catalogue, moved", "b.dst", "c.dst", "c.dst", true);
        row("renamed and back", "b.dst", "c.dst", "b.dst", false);
    }

    void designsGetBackWhatWasWritten()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(QString, finallyAt);
        QFETCH(bool, catalogueLost);
        if (!from.isEmpty())
            QVERIFY(QFile::rename(path(from), path(to)));
        if (catalogueLost) {
            m_controller.reset();
            QVERIFY(loseCatalogue());
            start();
        }
        m_controller->scanSmartFolders();
        if (!to.isEmpty() && to != finallyAt) {
            QVERIFY(QFile::rename(path(to), path(finallyAt)));
            m_controller->scanSmartFolders();
        }
        QCOMPARE(words(finallyAt), "early|first|");
        QCOMPARE(m_controller->project()->allTags(), QStringList{"early"});
        QVERIFY(!m_controller->isModified());
    }

    void newestWordsGoToCopies()
    {
        QVERIFY(QFile::copy(path("b.dst"), path("c.dst")));
        m_controller->scanSmartFolders();
        edit("c.dst", "other", "second", true);
        QVERIFY(QFile::copy(path("b.dst"), path("d.dst")));
        m_controller->scanSmartFolders();
        QCOMPARE(words("d.dst"), "other|second|*");
        for (const char *name : {"b.dst", "c.dst", "d.dst"})
            QVERIFY(QFile::rename(path(name), path(QStringLiteral("../") + name)));
        m_controller->scanSmartFolders();
        QCOMPARE(m_controller->project()->files().size(), 1);
        for (const char *name : {"b.dst", "c.dst"})
            QVERIFY(QFile::rename(path(QStringLiteral("../") + name), path(name)));
        m_controller->scanSmartFolders();
        QCOMPARE(words("b.dst"), "early|first|");
        QCOMPARE(words("c.dst"), "other|second|*");
    }

    void whatWasTakenAwayStaysAway()
    {
        QVERIFY(QFile::rename(path("b.dst"), path("c.dst")));
        m_controller->scanSmartFolders();
        edit("c.dst", {}, {}, false);
        for (const auto &[from, to] :
             {std::make_pair("c.dst", "../x.dst"), {"../x.dst", "b.dst"}}) {
            QVERIFY(QFile::rename(path(from), path(to)));
            m_controller->scanSmartFolders();
        }
        QCOMPARE(words("b.dst"), "||");
    }

    void absentDesignsAreForgotten()
    {
        QCOMPARE(m_controller->memory()->absentDesigns(), 0);
        QVERIFY(QFile::rename(path("b.dst"), path("../b.dst")));
        m_controller->scanSmartFolders();
        restart();
        QCOMPARE(m_controller->memory()->absentDesigns(), 1);
        m_controller->memory()->forgetAbsentDesigns();
        QCOMPARE(m_controller->memory()->absentDesigns(), 0);
        m_controller.reset();
        QVERIFY(!CatalogueFolder::read(store()).contains("first"));
        QVERIFY(QFile::rename(path("../b.dst"), path("b.dst")));
        start();
        m_controller->scanSmartFolders();
        QCOMPARE(words("b.dst"), "||");
    }

    void uselessStoreIsMadeAnew_data()
    {
        const Rows<Change, int> row("change", "keptAside");

        row("missing", {}, 0);
        row("empty", Change([](auto) { return QByteArray(); }), 0);
        row("something else", Change([](auto) { return QByteArray(5000, 'x'); }), 1);
        row("cut", Change([](auto whole) { return whole.left(whole.size() / 2); }), 1);
        row("overwritten", Change([](auto whole) {
                const int half = whole.size() / 2;
                return whole.left(half) + QByteArray(half, '\xff');
            }),
            1);
    }

    void uselessStoreIsMadeAnew()
    {
        QFETCH(Change, change);
        QFETCH(int, keptAside);
        m_controller.reset();
        const QByteArray whole = CatalogueFolder::read(store());
        QVERIFY(QFile::remove(store()));
        const QByteArray bytes = change ? change(whole) : QByteArray();
        if (change)
            QVERIFY(CatalogueFolder::write(store(), bytes));
        start();
        QCOMPARE(words("b.dst"), "early|first|");
        m_controller.reset();
        const QStringList aside =
            QDir(m_folder->dataFile({})).entryList({"user-data.damaged-*.sqlite"});
        QCOMPARE(aside.size(), keptAside);
        if (keptAside > 0)
            QCOMPARE(CatalogueFolder::read(m_folder->dataFile(aside.first())), bytes);
        QVERIFY(loseCatalogue());
        start();
        m_controller->scanSmartFolders();
        QCOMPARE(words("b.dst"), "early|first|");
    }

    void storeInTheWayStopsNobody()
    {
        m_controller.reset();
        QVERIFY(QFile::remove(store()));
        QVERIFY(QDir().mkpath(store() + "/in the way"));
        start();
        QCOMPARE(words("b.dst"), "early|first|");
        edit("a.dst", "late", "typed", true);
        m_controller->scanSmartFolders();
        QCOMPARE(m_controller->memory()->absentDesigns(), 0);
        m_controller->saveProjectIfModified();
        restart();
        QCOMPARE(words("a.dst"), "late|typed|*");
    }

    void storeThatComesBackIsHeard()
    {
        editAndKill();
        const QString away = store() + ".away";
        QVERIFY(QFile::rename(store(), away));
        QVERIFY(QFile::link(m_folder->designs(), store()));
        start();
        m_controller->memory()->setInterval(std::chrono::milliseconds(10));
        QCOMPARE(words("a.dst"), "||");
        QCOMPARE(std::rename(qPrintable(away), qPrintable(store())), 0);
        QTRY_COMPARE(words("a.dst"), "late,\"quoted\"\n|written last|*");
        QVERIFY(m_controller->isModified());
    }

    void storeRemovedMeanwhileIsMadeAnew()
    {
        m_controller->memory()->setInterval(std::chrono::milliseconds(10));
        QVERIFY(QFile::remove(store()));
        edit("a.dst", "late", "typed", true);
        const auto known = [this] {
            UserDataDatabase database(store());
            return !database.catalogue().isEmpty() && !database.unsaved().isEmpty();
        };
        QTRY_VERIFY(known());
        restart();
        QCOMPARE(words("a.dst"), "late|typed|*");
    }

    void storeIsForTheUserAlone()
    {
        m_controller.reset();
        const auto everybody = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther;
        QVERIFY(QFile::setPermissions(store(), everybody));
        start();
        m_controller->memory()->absentDesigns();
        const auto foreign = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther;
        QVERIFY(!(QFile::permissions(store()) & foreign));
    }

    void lookingLeavesNoTrace()
    {
        m_controller.reset();
        QVERIFY(QFile::remove(store()));
        ProjectController looker;
        looker.loadProject();
        QVERIFY(!QFile::exists(store()));
    }

private:
    QString path(const QString &name) const { return m_folder->design(name); }
    QString store() const { return m_folder->dataFile("user-data.sqlite"); }

    void draw(const QString &name, int side) const
    {
        QVERIFY(DstDesign::square("Rose", side).writeTo(path(name)));
    }

    void start()
    {
        m_controller = std::make_unique<ProjectController>();
        m_controller->loadOrCreateProject();
    }

    void restart()
    {
        // One program at a time.
        m_controller.reset();
        start();
    }

    void edit(const QString &name, const QString &tag, const QString &notes, bool favorite)
    {
        const auto files = m_controller->project()->files();
        for (const auto &file : files) {
            if (file->absoluteFilePath() != path(name))
                continue;
            file->setTags(tag.isEmpty() ? QStringList() : QStringList{tag});
            file->setNotes(notes);
            file->setFavorite(favorite);
            return;
        }
        QFAIL("no such design");
    }

    void editAndKill()
    {
        m_controller.reset();
        QProcess editor;
        editor.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        editor.start(QCoreApplication::applicationDirPath() + "/catalogue_editor",
                     {m_folder->dataFile("../settings.ini")});
        const auto written = [this] {
            UserDataDatabase database(store());
            const UserDataChanges unsaved = database.unsaved();
            return unsaved.designs.size() == 2 && unsaved.allTags;
        };
        QTRY_VERIFY_WITH_TIMEOUT(written(), PatienceMs);
        editor.kill();
        QVERIFY(editor.waitForFinished());
        QCOMPARE(editor.exitStatus(), QProcess::CrashExit);
    }

    QString words(const QString &name) const { return wordsOf(*m_controller, path(name)); }

    /** Ends the program after @p lastDoings, of which no save succeeds, and leaves the catalogue.
     */
    void endWithoutSave(const std::function<void()> &lastDoings)
    {
        const QByteArray before = CatalogueFolder::read(m_folder->catalogueFile());
        // A folder in the place of the catalogue cannot be replaced by a file.
        QVERIFY(loseCatalogue());
        QVERIFY(QDir().mkpath(m_folder->catalogueFile() + "/in the way"));
        QVERIFY_EXCEPTION_THROWN(lastDoings(), Error);
        m_controller.reset();
        QVERIFY(QDir(m_folder->catalogueFile()).removeRecursively());
        QVERIFY(CatalogueFolder::write(m_folder->catalogueFile(), before));
    }

    bool loseCatalogue() const { return QFile::remove(m_folder->catalogueFile()); }

    std::unique_ptr<CatalogueFolder> m_folder;
    std::unique_ptr<ProjectController> m_controller;
};

QTEST_MAIN(UserDataTest)
#include "tst_userdata.moc"
