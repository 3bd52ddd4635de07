#include "app/base/Error.h"
#include "online/PlistLoader.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

QByteArray plist(const QByteArray &content)
{
    return "<?xml version=\"1.0\"?>\n<!DOCTYPE plist PUBLIC \"-//A//DTD PLIST 1.0//EN\" "
           "\"http://a.example/p.dtd\">\n<plist version=\"1.0\">" +
           content + "</plist>";
}

QByteArray dict(const QByteArray &content)
{
    return plist("<dict>" + content + "</dict>");
}

QString failure(const QByteArray &data)
{
    try {
        PlistLoader::parse(data);
    } catch (const Error &error) {
        return error.toString();
    }
    return QString();
}

} // namespace

class tst_Plist : public QObject
{
    Q_OBJECT

private slots:
    void values();
    void failures_data();
    void failures();
    void hostile();
    void file();
};

void tst_Plist::values()
{
    const QVariant value = PlistLoader::parse(dict(
        "<key>s</key><string>t</string><key>r</key><real>1.5</real><key>i</key><integer>7</integer>"
        "<key>y</key><true/><key>n</key><false/><key>d</key><data>QQ==</data>"
        "<key>a</key><array><integer>1</integer><dict><key>k</key><string/></dict></array>"));
    QCOMPARE(value.toMap(), (QVariantMap{{"s", "t"},
                                         {"r", 1.5},
                                         {"i", 7},
                                         {"y", true},
                                         {"n", false},
                                         {"d", "QQ=="},
                                         {"a", QVariantList{1, QVariantMap{{"k", ""}}}}}));
}

void tst_Plist::failures_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("message");
    QTest::newRow("no plist") << QByteArray("<a/>")
                              << "No <plist> element found at the top-level of the XML file!";
    QTest::newRow("date") << dict("<key>k</key><date>2020</date>") << "<date> not yet supported";
    QTest::newRow("no key") << dict("<string>s</string>") << "<key> missing in <dict>";
    QTest::newRow("unknown") << dict("<key>k</key><odd/>") << "Unknown element type <odd>";
    QTest::newRow("key without value") << dict("<key>k</key>") << "Unknown element type <>";
}

void tst_Plist::failures()
{
    QFETCH(QByteArray, data);
    QTEST(failure(data), "message");
    QVERIFY(!failure("<plist>").isEmpty());
}

void tst_Plist::hostile()
{
    QVERIFY(!failure(QByteArray("<a>").repeated(500'000)).isEmpty());
    QVERIFY(!failure("<!DOCTYPE plist [<!ENTITY e \"grown\">]><plist><dict>&e;</dict></plist>")
                 .isEmpty());
}

void tst_Plist::file()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("p.plist"));
    QVERIFY_EXCEPTION_THROWN(PlistLoader::read(path), Error);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(dict("<key>k</key><true/>"));
    file.close();
    QCOMPARE(PlistLoader::read(path).toMap(), (QVariantMap{{"k", true}}));
}

QTEST_GUILESS_MAIN(tst_Plist)
#include "tst_plist.moc"
