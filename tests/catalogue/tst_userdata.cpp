#include "base/Error.h"
#include "catalogue/records/IFile.h"
#include "catalogue/sync/ProjectController.h"
#include "catalogue/userdata/UserDataDatabase.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"

#include <cstdio>
#include <functional>
#include <memory>
#include <QProcess>
#include <QtTest>

namespace {

constexpr int PatienceMs = 20000;

/** What the design at @p path bears in one line, or "-". */
QString wordsOf(const ProjectController &controller, const QString &path)
{
    const auto files = controller.project()->files();
    for (const auto &file : files) {
        if (file->absoluteFilePath() == path)
            return QStringLiteral("%1|%2|%3")
                .arg(file->tags().join(QLatin1Char(',')), file->notes(),
                     file->isFavorite() ? "*" : "");
    }
    return QStringLiteral("-");
}

} // namespace

using Change = std::function<QByteArray(const QByteArray &)>;
Q_DECLARE_METATYPE(Change)

class UserDataTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void killedProgramLosesNothing();
    void catalogueOfOthersWins();
    void failedSaveLeavesEditsUnsaved();
    void failedSaveOfMovedDesigns();
    void failedSaveBesideLeavesEditsUnsaved();
    void designsGetBackWhatWasWritten_data();
    void designsGetBackWhatWasWritten();
    void newestWordsGoToCopies();
    void whatWasTakenAwayStaysAway();
    void absentDesignsAreForgotten();
    void uselessStoreIsMadeAnew_data();
    void uselessStoreIsMadeAnew();
    void storeInTheWayStopsNobody();
    void storeThatComesBackIsHeard();
    void storeRemovedMeanwhileIsMadeAnew();
    void storeIsForTheUserAlone();
    void lookingLeavesNoTrace();

private:
    QString path(const QString &name) const { return m_folder->design(name); }
    QString store() const { return m_folder->dataFile(QStringLiteral("user-data.sqlite")); }
    void draw(const QString &name, int side) const;
    void start();
    void restart();
    void edit(const QString &name, const QString &tag, const QString &notes, bool favorite);
    void editAndKill();
    QString words(const QString &name) const { return wordsOf(*m_controller, path(name)); }
    void endWithoutSave(const std::function<void()> &lastDoings);
    bool loseCatalogue() const { return QFile::remove(m_folder->catalogueFile()); }

    std::unique_ptr<CatalogueFolder> m_folder;
    std::unique_ptr<ProjectController> m_controller;
};

void UserDataTest::init()
{
    m_folder = std::make_unique<CatalogueFolder>();
    draw(QStringLiteral("a.dst"), 100);
    draw(QStringLiteral("b.dst"), 110);
    start();
    m_controller->addDirectories({m_folder->designs()});
    QCOMPARE(m_controller->project()->files().size(), 2);
    edit(QStringLiteral("b.dst"), QStringLiteral("early"), QStringLiteral("first"), false);
    m_controller->project()->addTag(QStringLiteral("early"));
    m_controller->saveProjectIfModified();
}

void UserDataTest::cleanup()
{
    m_controller.reset();
    m_folder.reset();
}

void UserDataTest::draw(const QString &name, int side) const
{
    QVERIFY(DstDesign::square("Rose", side).writeTo(path(name)));
}

void UserDataTest::start()
{
    m_controller = std::make_unique<ProjectController>();
    m_controller->loadOrCreateProject();
}

void UserDataTest::restart()
{
    // One program at a time.
    m_controller.reset();
    start();
}

void UserDataTest::edit(const QString &name, const QString &tag, const QString &notes,
                        bool favorite)
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

void UserDataTest::editAndKill()
{
    m_controller.reset();
    QProcess editor;
    editor.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    editor.start(QCoreApplication::applicationDirPath() + QStringLiteral("/catalogue_editor"),
                 {m_folder->dataFile(QStringLiteral("../settings.ini"))});
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

void UserDataTest::killedProgramLosesNothing()
{
    const QByteArray saved = CatalogueFolder::read(m_folder->catalogueFile());
    editAndKill();
    QCOMPARE(CatalogueFolder::read(m_folder->catalogueFile()), saved);
    // However often it ends before it could save.
    for (int i = 0; i < 2; ++i) {
        restart();
        QCOMPARE(words("a.dst"), QStringLiteral("late,\"quoted\"\n|written last|*"));
        QCOMPARE(words("b.dst"), QStringLiteral("|first|"));
        QVERIFY(m_controller->project()->allTags().contains("late"));
        QVERIFY(m_controller->isModified());
        QVERIFY(m_controller->hasRecoveredEdits());
    }
    m_controller->saveProjectIfModified();
    restart();
    QVERIFY(!m_controller->isModified());
    QVERIFY(!m_controller->hasRecoveredEdits());
    QCOMPARE(words("a.dst"), QStringLiteral("late,\"quoted\"\n|written last|*"));
}

void UserDataTest::catalogueOfOthersWins()
{
    editAndKill();
    QByteArray other = CatalogueFolder::read(m_folder->catalogueFile());
    other.replace("first", "by hand");
    QVERIFY(CatalogueFolder::write(m_folder->catalogueFile(), other));
    restart();
    QCOMPARE(words("a.dst"), QStringLiteral("||"));
    QCOMPARE(words("b.dst"), QStringLiteral("early|by hand|"));
    QVERIFY(!m_controller->isModified());
    // And it is what is remembered from now on.
    QVERIFY(loseCatalogue());
    restart();
    m_controller->scanSmartFolders();
    QCOMPARE(words("a.dst"), QStringLiteral("||"));
    QCOMPARE(words("b.dst"), QStringLiteral("early|by hand|"));
}

/** Ends the program after @p lastDoings, of which no save succeeds, and leaves the catalogue. */
void UserDataTest::endWithoutSave(const std::function<void()> &lastDoings)
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

void UserDataTest::failedSaveLeavesEditsUnsaved()
{
    edit("a.dst", "late", "typed", true);
    endWithoutSave([this] { m_controller->saveProjectIfModified(); });
    start();
    QCOMPARE(words("a.dst"), QStringLiteral("late|typed|*"));
}

void UserDataTest::failedSaveOfMovedDesigns()
{
    edit("a.dst", "late", "typed", true);
    QVERIFY(QFile::rename(path("a.dst"), path("moved.dst")));
    QVERIFY(QFile::rename(path("b.dst"), path("../b.dst")));
    endWithoutSave([this] { m_controller->scanSmartFolders(); });
    start();
    // The catalogue knows the old places only, and nothing of them is absent.
    QCOMPARE(words("a.dst"), QStringLiteral("late|typed|*"));
    QCOMPARE(words("b.dst"), QStringLiteral("early|first|"));
    QCOMPARE(m_controller->memory()->absentDesigns(), 0);
    m_controller->scanSmartFolders();
    QCOMPARE(words("moved.dst"), QStringLiteral("late|typed|*"));
    QCOMPARE(m_controller->memory()->absentDesigns(), 1);
}

void UserDataTest::failedSaveBesideLeavesEditsUnsaved()
{
    const QString data = QFileInfo(m_folder->catalogueFile()).path();
    edit("a.dst", "late", "typed", true);
    QVERIFY(QDir().rename(data, data + " unplugged"));
    m_controller->beginSave([] {});
    QVERIFY_EXCEPTION_THROWN(m_controller->finishSave(), Error);
    QVERIFY(QDir().rename(data + " unplugged", data));
    restart();
    QCOMPARE(words("a.dst"), QStringLiteral("late|typed|*"));
    QVERIFY(m_controller->isModified());
    // One that succeeds leaves nothing to be brought back.
    m_controller->beginSave([] {});
    m_controller->finishSave();
    restart();
    QCOMPARE(words("a.dst"), QStringLiteral("late|typed|*"));
    QVERIFY(!m_controller->isModified());
}

void UserDataTest::designsGetBackWhatWasWritten_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("finallyAt");
    QTest::addColumn<bool>("catalogueLost");

    QTest::newRow("gone for one scan") << "b.dst"
                                       << "../hidden.dst"
                                       << "b.dst" << false;
    QTest::newRow("back under another name") << "b.dst"
                                             << "../hidden.dst"
                                             << "c.dst" << false;
    QTest::newRow("lost catalogue") << ""
                                    << ""
                                    << "b.dst" << true;
    QTest::newRow("lost catalogue, moved") << "b.dst"
                                           << "c.dst"
                                           << "c.dst" << true;
    QTest::newRow("renamed and back") << "b.dst"
                                      << "c.dst"
                                      << "b.dst" << false;
}

void UserDataTest::designsGetBackWhatWasWritten()
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
    QCOMPARE(words(finallyAt), QStringLiteral("early|first|"));
    QCOMPARE(m_controller->project()->allTags(), QStringList{"early"});
    QVERIFY(!m_controller->isModified());
}

void UserDataTest::newestWordsGoToCopies()
{
    QVERIFY(QFile::copy(path("b.dst"), path("c.dst")));
    m_controller->scanSmartFolders();
    edit("c.dst", "other", "second", true);
    QVERIFY(QFile::copy(path("b.dst"), path("d.dst")));
    m_controller->scanSmartFolders();
    QCOMPARE(words("d.dst"), QStringLiteral("other|second|*"));
    for (const char *name : {"b.dst", "c.dst", "d.dst"})
        QVERIFY(QFile::rename(path(name), path(QStringLiteral("../") + name)));
    m_controller->scanSmartFolders();
    QCOMPARE(m_controller->project()->files().size(), 1);
    for (const char *name : {"b.dst", "c.dst"})
        QVERIFY(QFile::rename(path(QStringLiteral("../") + name), path(name)));
    m_controller->scanSmartFolders();
    QCOMPARE(words("b.dst"), QStringLiteral("early|first|"));
    QCOMPARE(words("c.dst"), QStringLiteral("other|second|*"));
}

void UserDataTest::whatWasTakenAwayStaysAway()
{
    QVERIFY(QFile::rename(path("b.dst"), path("c.dst")));
    m_controller->scanSmartFolders();
    edit("c.dst", {}, {}, false);
    for (const auto &[from, to] : {std::make_pair("c.dst", "../x.dst"), {"../x.dst", "b.dst"}}) {
        QVERIFY(QFile::rename(path(from), path(to)));
        m_controller->scanSmartFolders();
    }
    QCOMPARE(words("b.dst"), QStringLiteral("||"));
}

void UserDataTest::absentDesignsAreForgotten()
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
    QCOMPARE(words("b.dst"), QStringLiteral("||"));
}

void UserDataTest::uselessStoreIsMadeAnew_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("keptAside");

    QTest::newRow("missing") << Change() << 0;
    QTest::newRow("empty") << Change([](auto) { return QByteArray(); }) << 0;
    QTest::newRow("something else") << Change([](auto) { return QByteArray(5000, 'x'); }) << 1;
    QTest::newRow("cut") << Change([](auto whole) { return whole.left(whole.size() / 2); }) << 1;
    QTest::newRow("overwritten") << Change([](auto whole) {
        const int half = whole.size() / 2;
        return whole.left(half) + QByteArray(half, '\xff');
    }) << 1;
}

void UserDataTest::uselessStoreIsMadeAnew()
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
    QCOMPARE(words("b.dst"), QStringLiteral("early|first|"));
    m_controller.reset();
    const QStringList aside =
        QDir(m_folder->dataFile({})).entryList({"user-data.damaged-*.sqlite"});
    QCOMPARE(aside.size(), keptAside);
    if (keptAside > 0)
        QCOMPARE(CatalogueFolder::read(m_folder->dataFile(aside.first())), bytes);
    QVERIFY(loseCatalogue());
    start();
    m_controller->scanSmartFolders();
    QCOMPARE(words("b.dst"), QStringLiteral("early|first|"));
}

void UserDataTest::storeInTheWayStopsNobody()
{
    m_controller.reset();
    QVERIFY(QFile::remove(store()));
    QVERIFY(QDir().mkpath(store() + "/in the way"));
    start();
    QCOMPARE(words("b.dst"), QStringLiteral("early|first|"));
    edit("a.dst", "late", "typed", true);
    m_controller->scanSmartFolders();
    QCOMPARE(m_controller->memory()->absentDesigns(), 0);
    m_controller->saveProjectIfModified();
    restart();
    QCOMPARE(words("a.dst"), QStringLiteral("late|typed|*"));
}

void UserDataTest::storeThatComesBackIsHeard()
{
    editAndKill();
    const QString away = store() + ".away";
    QVERIFY(QFile::rename(store(), away));
    QVERIFY(QFile::link(m_folder->designs(), store()));
    start();
    m_controller->memory()->setInterval(std::chrono::milliseconds(10));
    QCOMPARE(words("a.dst"), QStringLiteral("||"));
    QCOMPARE(std::rename(qPrintable(away), qPrintable(store())), 0);
    QTRY_COMPARE(words("a.dst"), QStringLiteral("late,\"quoted\"\n|written last|*"));
    QVERIFY(m_controller->isModified());
}

void UserDataTest::storeRemovedMeanwhileIsMadeAnew()
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
    QCOMPARE(words("a.dst"), QStringLiteral("late|typed|*"));
}

void UserDataTest::storeIsForTheUserAlone()
{
    m_controller.reset();
    const auto everybody = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther;
    QVERIFY(QFile::setPermissions(store(), everybody));
    start();
    m_controller->memory()->absentDesigns();
    const auto foreign = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther;
    QVERIFY(!(QFile::permissions(store()) & foreign));
}

void UserDataTest::lookingLeavesNoTrace()
{
    m_controller.reset();
    QVERIFY(QFile::remove(store()));
    ProjectController looker;
    looker.loadProject();
    QVERIFY(!QFile::exists(store()));
}

QTEST_MAIN(UserDataTest)
#include "tst_userdata.moc"
