#include "base/files/FileLock.h"
#include "catalogue/userdata/UserDataDatabase.h"
#include "CliProcess.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/Rows.h"

#include <memory>
#include <QtTest>

class CliBackupTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_cli = std::make_unique<CliProcess>();
        qputenv("TMPDIR", m_cli->temporaryPath().toLocal8Bit());
        QVERIFY(QDir(m_cli->workPath()).mkpath("designs"));
        QVERIFY(DstDesign::square().writeTo(m_cli->workPath("designs/rose.dst")));
        QCOMPARE(m_cli->run({"scan", "designs"}).status, 0);
    }

    void cleanup() { m_cli.reset(); }

    void goesToAFileAndBack_data()
    {
        const Rows<QString, bool> row("name", "compressed");

        row("compressed", "mine.xml.gz", true);
        row("plain", "mine.xml", false);
    }

    void goesToAFileAndBack()
    {
        QFETCH(QString, name);
        QFETCH(bool, compressed);
        const QByteArray before = catalogue();
        const SavedSearch search{"Roses", "name:rose"};
        UserDataDatabase(file("user-data.sqlite")).remember({{{search}, {}}, {}});
        auto result = m_cli->run({"backup", name});
        QCOMPARE(result.status, 0);
        QCOMPARE(result.out, m_cli->workPath(name).toUtf8() + '\n');
        QCOMPARE(result.error, "designs 1, tagged 0, notes 0, favorites 0\n");
        QCOMPARE(CatalogueFolder::read(m_cli->workPath(name)) == before, !compressed);

        QVERIFY(DstDesign::square("Lily").writeTo(m_cli->workPath("designs/lily.dst")));
        QCOMPARE(m_cli->run({"scan"}).status, 0);
        const QByteArray after = catalogue();
        QVERIFY(after != before);
        UserDataDatabase(file("user-data.sqlite")).remember({{{}, {search.name}}, {}});
        result = m_cli->run({"restore", name});
        QCOMPARE(result.status, 0);
        QCOMPARE(catalogue(), before);
        QCOMPARE(UserDataDatabase(file("user-data.sqlite")).remembered().searches.written,
                 QList<SavedSearch>{search});

        // And what was there last comes back by what the command has printed.
        QCOMPARE(m_cli->run({"restore", QString::fromUtf8(result.out.trimmed())}).status, 0);
        QCOMPARE(catalogue(), after);
    }

    void goesToTheBackups()
    {
        const auto result = m_cli->run({"backup"});
        QCOMPARE(result.status, 0);
        QVERIFY(QFile::exists(QString::fromUtf8(result.out.trimmed())));
        const int count = backups().size();
        // The same again is the same backup.
        QCOMPARE(m_cli->run({"backup"}).out, result.out);
        QCOMPARE(backups().size(), count);
    }

    void sparesWhatIsThere_data()
    {
        const Rows<QStringList, int> row("arguments", "status");

        row("a file", {"backup", "there.xml"}, 1);
        row("a design", {"backup", "--force", "designs/rose.dst"}, 2);
        row("a folder", {"backup", "--force", "designs"}, 1);
        row("in no folder", {"backup", "nowhere/a.xml"}, 1);
        row("by force", {"backup", "--force", "there.xml"}, 0);
    }

    void sparesWhatIsThere()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QVERIFY(CatalogueFolder::write(m_cli->workPath("there.xml"), "mine"));
        const QByteArray design = CatalogueFolder::read(m_cli->workPath("designs/rose.dst"));
        const auto result = m_cli->run(arguments);
        QCOMPARE(result.status, status);
        QCOMPARE(result.out.isEmpty(), status != 0);
        QCOMPARE(CatalogueFolder::read(m_cli->workPath("there.xml")) == "mine", status != 0);
        QCOMPARE(CatalogueFolder::read(m_cli->workPath("designs/rose.dst")), design);
        QVERIFY(!QDir(m_cli->workPath("nowhere")).exists());
    }

    void refusesWhatIsNoCatalogue_data()
    {
        const Rows<QByteArray> row("bytes");

        row("nothing", {});
        row("something else", "<html/>");
        row("compressed junk", "\x1f\x8b and no more than that");
        row("newer", "<hoopline_organizer version=\"99.0\"><files/>"
                     "</hoopline_organizer>");
    }

    void refusesWhatIsNoCatalogue()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(CatalogueFolder::write(m_cli->workPath("given"), bytes));
        const QByteArray before = catalogue();
        const auto result = m_cli->run({"restore", "given"});
        QCOMPARE(result.status, 1);
        QCOMPARE(result.error.count('\n'), 1);
        QCOMPARE(catalogue(), before);
    }

    void healsADamagedCatalogue()
    {
        const QByteArray before = catalogue();
        QCOMPARE(m_cli->run({"backup", "mine.xml.gz"}).status, 0);
        breakCatalogue();
        const QStringList kept = backups();
        // What is damaged is no backup.
        auto result = m_cli->run({"backup"});
        QCOMPARE(result.status, 1);
        QCOMPARE(backups(), kept);
        QCOMPARE(m_cli->run({"restore", "mine.xml.gz"}).status, 0);
        QCOMPARE(catalogue(), before);
    }

    void restoresNothingWhileOrganiserRuns()
    {
        QCOMPARE(m_cli->run({"backup", "mine.xml.gz"}).status, 0);
        QVERIFY(DstDesign::square("Lily").writeTo(m_cli->workPath("designs/lily.dst")));
        QCOMPARE(m_cli->run({"scan"}).status, 0);
        const QByteArray after = catalogue();
        FileLock lock(file("hoopline-organizer.lock"), "hoopline-organizer");
        QCOMPARE(lock.tryLock(), FileLock::Held);
        QCOMPARE(m_cli->run({"restore", "mine.xml.gz"}).status, 3);
        QCOMPARE(catalogue(), after);
        // To look costs nothing.
        QCOMPARE(m_cli->run({"backup", "another.xml.gz"}).status, 0);
    }

private:
    QString file(const QString &name) const { return m_cli->dataPath(name); }
    QByteArray catalogue() const { return CatalogueFolder::read(file("hoopline-organizer.xml")); }
    QStringList backups() const
    {
        return QDir(file("backups")).entryList({"*.xml.gz"}, QDir::Files, QDir::Name);
    }
    void breakCatalogue() const
    {
        const QByteArray whole = catalogue();
        QVERIFY(
            CatalogueFolder::write(file("hoopline-organizer.xml"), whole.left(whole.size() / 2)));
    }

    std::unique_ptr<CliProcess> m_cli;
};

QTEST_GUILESS_MAIN(CliBackupTest)
#include "tst_cli_backup.moc"
