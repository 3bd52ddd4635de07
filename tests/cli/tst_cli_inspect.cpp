#include "CliProcess.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include <QCryptographicHash>
#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class CliInspectTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsAllAboutDesigns();
    void listsPoints();
    void reportsUnreadableFilesInPlace();
    void printsNumbersThatReadBackExactly();
    void escapesNames_data();
    void escapesNames();
    void keepsHostileTextOffTheTerminal();
    void refusesWhatIsNoDesignFile_data();
    void refusesWhatIsNoDesignFile();
    void rendersPreview_data();
    void rendersPreview();
    void failsWhenPreviewCannotBeWritten();
    void failsWhenOutputIsLost();

private:
    QList<QJsonObject> inspect(const QStringList &arguments, int status = 0);

    CliProcess m_cli;
};

QList<QJsonObject> CliInspectTest::inspect(const QStringList &arguments, int status)
{
    QList<QJsonObject> objects;
    const auto result = m_cli.run(QStringList{"inspect", "--json"} + arguments);
    [&] {
        QCOMPARE(result.status, status);
        QCOMPARE(result.error, QByteArray());
        QVERIFY(result.out.endsWith('\n'));
        const auto lines = result.out.chopped(1).split('\n');
        for (const QByteArray &line : lines) {
            QJsonParseError error;
            objects.append(QJsonDocument::fromJson(line, &error).object());
            QVERIFY2(error.error == QJsonParseError::NoError, line);
        }
    }();
    return objects;
}

void CliInspectTest::tellsAllAboutDesigns()
{
    const DstDesign design = DstDesign::square("Rose");
    QVERIFY(design.writeTo(m_cli.workPath("a.dst")));
    QVERIFY(DstDesign::square("Leaf", 45).writeTo(m_cli.workPath("B.DST")));
    const auto objects = inspect({"./B.DST", "a.dst"});
    QCOMPARE(objects.size(), 2);
    QCOMPARE(objects.at(0).value("file").toString(), QStringLiteral("./B.DST"));

    const QJsonObject rose = objects.at(1);
    QCOMPARE(rose.value("file").toString(), QStringLiteral("a.dst"));
    QCOMPARE(rose.value("format").toString(), QStringLiteral("dst"));
    QCOMPARE(rose.value("md5").toString().toLatin1(),
             QCryptographicHash::hash(design.bytes(), QCryptographicHash::Md5).toHex());
    QCOMPARE(rose.value("stitch_count").toInt(), 8);
    QCOMPARE(rose.value("thread_count").toInt(), 2);
    QCOMPARE(rose.value("width_mm").toDouble(), 10.0);
    QCOMPARE(rose.value("height_mm").toDouble(), 10.0);
    QCOMPARE(rose.value("metadata").toObject(), (QJsonObject{{"name", "Rose"}}));
    QCOMPARE(rose.value("threads").toArray().at(1).toObject(),
             (QJsonObject{{"color", "#00ff00"},
                          {"description", "Green"},
                          {"catalog_number", "1"},
                          {"brand", ""},
                          {"chart", ""}}));
    QVERIFY(!rose.contains("points"));
}

void CliInspectTest::listsPoints()
{
    DstDesign design("P");
    design.stitch(10, -3).colorChange().stitch(-121, 121).end();
    QVERIFY(design.writeTo(m_cli.workPath("points.dst")));
    const auto points = inspect({"--points", "points.dst"}).value(0).value("points").toArray();
    QCOMPARE(points, (QJsonArray{QJsonArray{10, -3, 0}, QJsonArray{10, -3, 5},
                                 QJsonArray{-111, 118, 0}, QJsonArray{-111, 118, 4}}));
}

void CliInspectTest::reportsUnreadableFilesInPlace()
{
    QVERIFY(DstDesign::square().writeTo(m_cli.workPath("a.dst")));
    QVERIFY(DstDesign::square().writeTo(m_cli.workPath("a.foo")));
    const auto objects = inspect({"gone.dst", "a.dst", "a.foo"}, 1);
    QCOMPARE(objects.size(), 3);
    QCOMPARE(objects.at(0),
             (QJsonObject{{"file", "gone.dst"}, {"error", "Failed to open file: gone.dst"}}));
    QVERIFY(objects.at(1).contains("md5"));
    QCOMPARE(objects.at(2),
             (QJsonObject{{"file", "a.foo"}, {"error", "No reader for file format:foo"}}));
}

void CliInspectTest::printsNumbersThatReadBackExactly()
{
    // All x are negative, so that the right edge keeps its tiny start value.
    DstDesign design("N");
    design.stitch(-7, 3).stitch(-7, 3).end();
    QVERIFY(design.writeTo(m_cli.workPath("n.dst")));
    const auto object = inspect({"n.dst"}).value(0);
    const auto bounds = object.value("bounds").toArray();
    QCOMPARE(bounds.at(0).toDouble(), -14.0);
    QVERIFY(bounds.at(2).toDouble() == double(1.1754943508222875e-38f));
    QVERIFY(object.value("width_mm").toDouble() == (double(1.1754943508222875e-38f) + 14.0) / 10.0);

    QVERIFY(DstDesign("Empty").writeTo(m_cli.workPath("empty.dst")));
    const auto empty = inspect({"empty.dst"}).value(0);
    QVERIFY(empty.value("bounds").toArray().at(0).toDouble() == double(3.4028234663852886e+38f));
    QCOMPARE(empty.value("stitch_count").toInt(), 0);
}

void CliInspectTest::escapesNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("quotes") << "say \"hi\" \\ there.dst";
    QTest::newRow("control characters") << "line\nfeed\ttab\033[31m.dst";
    QTest::newRow("other scripts")
        << QString::fromUtf8("\345\210\272\347\273\243 \303\234 \360\237\214\271.dst");
    QTest::newRow("like an option") << "--json.dst";
}

void CliInspectTest::escapesNames()
{
    QFETCH(QString, name);
    QVERIFY(DstDesign::square().writeTo(m_cli.workPath(name)));
    const auto objects = inspect({"--", name});
    QCOMPARE(objects.size(), 1);
    QCOMPARE(objects.at(0).value("file").toString(), name);
    QVERIFY(objects.at(0).contains("md5"));
}

void CliInspectTest::keepsHostileTextOffTheTerminal()
{
    QVERIFY(DstDesign::square("A\033]0;x\007B").writeTo(m_cli.workPath("esc\033[2J.dst")));
    const auto result = m_cli.run({"inspect", "esc\033[2J.dst"});
    QCOMPARE(result.status, 0);
    QVERIFY(result.out.contains("10.0 x 10.0 mm"));
    QVERIFY(!result.out.contains('\033'));
    const auto missing = m_cli.run({"inspect", "gone\033[2J.dst"});
    QCOMPARE(missing.status, 1);
    QCOMPARE(missing.out, QByteArray());
    QVERIFY(missing.error.contains("Failed to open file: "));
    QVERIFY(!missing.error.contains('\033'));
}

void CliInspectTest::refusesWhatIsNoDesignFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("directory") << "folder.dst";
    QTest::newRow("endless device") << "zero.dst";
    QTest::newRow("gigabytes") << "huge.dst";
}

void CliInspectTest::refusesWhatIsNoDesignFile()
{
    QVERIFY(QDir(m_cli.workPath()).mkpath("folder.dst"));
    QFile::link("/dev/zero", m_cli.workPath("zero.dst"));
    QVERIFY(CatalogueFolder::write(m_cli.workPath("huge.dst"), "x"));
    QVERIFY(QFile::resize(m_cli.workPath("huge.dst"), qint64(5) << 30)); // sparse
    QFETCH(QString, name);
    const auto object = inspect({name}, 1).value(0);
    QCOMPARE(object.value("file").toString(), name);
    QVERIFY(!object.value("error").toString().isEmpty());
    QFile::remove(m_cli.workPath("huge.dst"));
}

void CliInspectTest::rendersPreview_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QSize>("size");
    QTest::newRow("default size") << QStringList{} << QSize(400, 200);
    QTest::newRow("given size") << QStringList{"--size", "64"} << QSize(64, 32);
    QTest::newRow("beside JSON") << QStringList{"--size=64", "--json"} << QSize(64, 32);
}

void CliInspectTest::rendersPreview()
{
    QFETCH(QStringList, options);
    DstDesign design("Wide");
    design.stitch(100, 50).stitch(-100, -50).stitch(100, 0);
    QVERIFY(design.writeTo(m_cli.workPath("wide.dst")));
    const auto result =
        m_cli.run(QStringList{"inspect", "--render", "picture", "wide.dst"} + options);
    QCOMPARE(result.status, 0);
    QImage image(m_cli.workPath("picture"), "PNG");
    QTEST(image.size(), "size");
}

void CliInspectTest::failsWhenPreviewCannotBeWritten()
{
    QVERIFY(DstDesign::square().writeTo(m_cli.workPath("a.dst")));
    const auto result = m_cli.run({"inspect", "--render", "none/such/o.png", "a.dst"});
    QCOMPARE(result.status, 1);
    QVERIFY(result.error.contains("none/such/o.png"));
}

void CliInspectTest::failsWhenOutputIsLost()
{
    if (!QFile::exists("/dev/full"))
        QSKIP("there is no device that is always full here");
    QVERIFY(DstDesign::square().writeTo(m_cli.workPath("a.dst")));
    QProcess process;
    process.setStandardOutputFile("/dev/full");
    QVERIFY(m_cli.start(process, {"inspect", "--json", "a.dst"}));
    QCOMPARE(CliProcess::finish(process).status, 1);
}

QTEST_GUILESS_MAIN(CliInspectTest)
#include "tst_cli_inspect.moc"
