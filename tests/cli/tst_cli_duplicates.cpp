#include "CliProcess.h"

#include <QtTest>

class CliDuplicatesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir().mkpath(m_cli.workPath("designs")));
        const QString samples = QStringLiteral(SAMPLES_DIR "/");
        QVERIFY(QFile::copy(samples + "Flowers/rose.pes", path("a.pes")));
        QVERIFY(QFile::copy(samples + "Flowers/rose.pes", path("b.pes")));
        QVERIFY(QFile::copy(samples + "Flowers/rose.jef", path("c.jef")));
        QVERIFY(QFile::copy(samples + "Shapes/star.pes", path("star.pes")));
        QCOMPARE(m_cli.run({"scan", "designs"}).status, 0);
    }

    void printsGroups()
    {
        const auto result = m_cli.run({"duplicates"});

        QCOMPARE(result.status, 0);
        QCOMPARE(QString::fromUtf8(result.out),
                 QStringLiteral("The same content:\n  %1\n  %2\n"
                                "The same stitches in other files:\n  %1\n  %2\n  %3\n")
                     .arg(path("a.pes"), path("b.pes"), path("c.jef")));
        QVERIFY(result.error.contains("2 groups"));
    }

    void printsJson()
    {
        const auto result = m_cli.run({"duplicates", "--json"});

        QCOMPARE(result.status, 0);
        const QList<QByteArray> lines = result.out.trimmed().split('\n');
        QCOMPARE(lines.size(), 2);
        const QJsonObject group = QJsonDocument::fromJson(lines.at(1)).object();
        QCOMPARE(group.value("likeness").toString(), "same-stitches");
        const QJsonArray files = group.value("files").toArray();
        QCOMPARE(files.size(), 3);
        QCOMPARE(files.at(2).toObject().value("file").toString(), path("c.jef"));
        QCOMPARE(files.at(0).toObject().value("md5"), files.at(1).toObject().value("md5"));
    }

    void tellsWhatCouldNotBeCompared()
    {
        QVERIFY(QFile::remove(path("c.jef")));

        const auto result = m_cli.run({"duplicates"});

        QCOMPARE(result.status, 0);
        QVERIFY(!result.out.contains("c.jef"));
        QVERIFY(result.error.contains("1 design could not be compared"));
    }

    void needsACatalogue()
    {
        const CliProcess fresh;
        QCOMPARE(fresh.run({"duplicates"}).status, 1);
        QCOMPARE(m_cli.run({"duplicates", "designs"}).status, 2);
    }

private:
    QString path(const char *name) const
    {
        return m_cli.workPath("designs/" + QLatin1String(name));
    }

    CliProcess m_cli;
};

QTEST_GUILESS_MAIN(CliDuplicatesTest)
#include "tst_cli_duplicates.moc"
