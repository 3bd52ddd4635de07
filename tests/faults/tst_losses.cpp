#include "faults/FaultyProcess.h"
#include "faults/Profile.h"
#include "support/DstDesign.h"

#include <cerrno>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int Designs = 3;

enum class Fate { LeftAlone, KeptAside };
using Change = QByteArray (*)(const QByteArray &);

QByteArray ofNewerVersion(const QByteArray &catalogue)
{
    return QByteArray(catalogue).replace("<hoopline_organizer version=\"1",
                                         "<hoopline_organizer version=\"9");
}

QByteArray cutShort(const QByteArray &catalogue)
{
    return catalogue.left(catalogue.lastIndexOf("</file>") - 10);
}

QByteArray flipped(const QByteArray &catalogue)
{
    QByteArray bytes = catalogue;
    // A bit makes a "|" of the "<" that closes the last record.
    const int at = bytes.lastIndexOf("</file>");
    bytes[at] = char(bytes.at(at) ^ 0x40);
    return bytes;
}

} // namespace

Q_DECLARE_METATYPE(Fate)
Q_DECLARE_METATYPE(Change)

/** The programs themselves among things that used to cost people their tags and notes. */
class LossesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_profile.reset(); }
    void unusableCatalogue_data();
    void unusableCatalogue();
    void catalogueThatCannotBeReadForNow_data();
    void catalogueThatCannotBeReadForNow();
    void folderAwayForAScan();
    void designUnreadableWhereItHasMoved();
    void catalogueThatGotLost();

private:
    int run(const QString &program, const QStringList &arguments, const Fault &fault = {});
    QString design(int i) const { return m_profile->designs() + QStringLiteral("/%1.dst").arg(i); }

    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<Profile> m_profile;
    QByteArray m_saved;
    Profile::Words m_words;
    QByteArray m_said;
};

/** Returns the status, or -1 for a process that did not end well. */
int LossesTest::run(const QString &program, const QStringList &arguments, const Fault &fault)
{
    FaultyProcess process(*m_profile, fault);
    if (program == QLatin1String(ORGANIZER))
        process.startAndEnd(program);
    else
        process.start(program, arguments);
    const bool ended = process.waitForEnd();
    m_said = process.readAllStandardOutput() + process.readAllStandardError();
    return ended && !process.wasKilled() ? process.status() : -1;
}

void LossesTest::init()
{
    m_root = std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/XXXXXX"));
    m_profile = std::make_unique<Profile>(m_root->path(), QStringLiteral("user"));
    for (int i = 0; i < Designs; ++i)
        QVERIFY(DstDesign::square("Rose", 20 + i).writeTo(design(i)));
    QCOMPARE(run(CLI, {QStringLiteral("scan"), m_profile->designs()}), 0);
    QCOMPARE(run(EDITOR, {QStringLiteral("begin")}), 0);
    m_saved = m_profile->catalogue();
    m_words = Profile::wordsIn(m_saved);
    QCOMPARE(m_words.size(), Designs);
}

void LossesTest::unusableCatalogue_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<Change>("change");
    QTest::addColumn<Fate>("fate");
    const auto rows = [](const char *name, Change change, Fate fate) {
        QTest::addRow("%s, organizer", name) << QString(ORGANIZER) << change << fate;
        QTest::addRow("%s, companion", name) << QString(CLI) << change << Fate::LeftAlone;
    };
    rows("newer version", &ofNewerVersion, Fate::LeftAlone);
    rows("cut short", &cutShort, Fate::KeptAside);
    rows("one bit flipped", &flipped, Fate::KeptAside);
}

void LossesTest::unusableCatalogue()
{
    QFETCH(QString, program);
    QFETCH(Change, change);
    QFETCH(Fate, fate);
    const QByteArray bytes = change(m_saved);
    QVERIFY(bytes != m_saved);
    QVERIFY(Profile::write(m_profile->catalogueFile(), bytes));
    const int status = run(program, program == CLI ? QStringList{"scan"} : QStringList());
    const QDir data(m_profile->data());
    const QStringList kept = data.entryList({"hoopline-organizer.damaged-*.xml"});
    if (fate == Fate::LeftAlone) {
        QVERIFY2(status != 0 || program == ORGANIZER, m_said);
        QCOMPARE(m_profile->catalogue(), bytes);
        QVERIFY(kept.isEmpty());
        return;
    }
    QCOMPARE(status, 0);
    QCOMPARE(kept.size(), 1);
    QCOMPARE(Profile::read(data.filePath(kept.first())), bytes);
    // What was whole was taken over; the rest is known to the second memory.
    QVERIFY(Profile::wordsIn(m_profile->catalogue()).size() >= Designs - 1);
    QCOMPARE(run(CLI, {QStringLiteral("scan")}), 0);
    QCOMPARE(Profile::wordsIn(m_profile->catalogue()), m_words);
}

void LossesTest::catalogueThatCannotBeReadForNow_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<int>("error");
    for (const int error : {EIO, EACCES}) {
        QTest::addRow("%s, organizer", strerror(error)) << QString(ORGANIZER) << error;
        QTest::addRow("%s, companion", strerror(error)) << QString(CLI) << error;
    }
}

// For ever, and at every call for the disk: nobody waits for the end of a loop.
void LossesTest::catalogueThatCannotBeReadForNow()
{
    QFETCH(QString, program);
    QFETCH(int, error);
    const QStringList arguments = program == CLI ? QStringList{"scan"} : QStringList();
    const int status = run(program, arguments, {error, 1, true});
    QVERIFY2(status >= 0, m_said);
    QVERIFY2(status > 0 || program == ORGANIZER, m_said);
    QCOMPARE(m_profile->catalogue(), m_saved);
    QCOMPARE(run(program, arguments), 0);
    QCOMPARE(Profile::wordsIn(m_profile->catalogue()), m_words);
}

void LossesTest::folderAwayForAScan()
{
    const QString away = m_profile->disk() + QStringLiteral("/away");
    QVERIFY(QDir().rename(m_profile->designs(), away));
    QVERIFY(run(CLI, {QStringLiteral("scan")}) != 0);
    QCOMPARE(m_profile->catalogue(), m_saved);
    QCOMPARE(run(CLI, {QStringLiteral("scan"), QStringLiteral("--prune")}), 0);
    QVERIFY(Profile::wordsIn(m_profile->catalogue()).isEmpty());
    QVERIFY(QDir().rename(away, m_profile->designs()));
    QCOMPARE(run(CLI, {QStringLiteral("scan")}), 0);
    QCOMPARE(Profile::wordsIn(m_profile->catalogue()), m_words);
}

void LossesTest::designUnreadableWhereItHasMoved()
{
    const QString there = m_profile->designs() + QStringLiteral("/moved.dst");
    const QString away = m_profile->disk() + QStringLiteral("/away.dst");
    QVERIFY(QFile::rename(design(0), away));
    // Cannot be read, whoever reads it.
    QVERIFY(QFile::link(QStringLiteral("/proc/self/mem"), there));
    QCOMPARE(run(CLI, {QStringLiteral("scan")}), 1);
    QVERIFY(QFile::remove(there) && QFile::rename(away, there));
    QCOMPARE(run(CLI, {QStringLiteral("scan")}), 0);
    QCOMPARE(Profile::wordsIn(m_profile->catalogue())["moved.dst"], m_words["0.dst"]);
}

void LossesTest::catalogueThatGotLost()
{
    QVERIFY(QFile::remove(m_profile->catalogueFile()));
    QCOMPARE(run(ORGANIZER, {}), 0);
    QCOMPARE(run(CLI, {QStringLiteral("scan")}), 0);
    QCOMPARE(Profile::wordsIn(m_profile->catalogue()), m_words);
}

QTEST_GUILESS_MAIN(LossesTest)
#include "tst_losses.moc"
