#include "base/Error.h"
#include "online/PlistLoader.h"
#include "support/Rows.h"

#include <QtTest>

class tst_Plist : public QObject
{
    Q_OBJECT

private slots:
    void values()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("p.plist");
        QVERIFY_EXCEPTION_THROWN(PlistLoader::read(path), Error);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(100'000'000));
        QVERIFY_EXCEPTION_THROWN(PlistLoader::read(path), Error);
        QVERIFY(file.resize(0));
        file.write("<?xml version=\"1.0\"?>\n<!DOCTYPE plist PUBLIC \"-//A//DTD PLIST 1.0//EN\" "
                   "\"http://a.example/p.dtd\">\n<plist version=\"1.0\"><dict>"
                   "<key>s</key><string>t</string><key>r</key><real>1.5</real>"
                   "<key>i</key><integer>7</integer><key>y</key><true/><key>n</key><false/>"
                   "<key>d</key><data>QQ==</data><key>a</key><array><integer>1</integer>"
                   "<dict><key>k</key><string/></dict></array></dict></plist>");
        file.close();
        QCOMPARE(PlistLoader::read(path).toMap(),
                 (QVariantMap{{"s", "t"},
                              {"r", 1.5},
                              {"i", 7},
                              {"y", true},
                              {"n", false},
                              {"d", "QQ=="},
                              {"a", QVariantList{1, QVariantMap{{"k", ""}}}}}));
    }

    void failures_data()
    {
        const Rows<QByteArray, QString> row("data", "message");
        row("no XML", "<plist>", {});
        row("deeply nested", QByteArray("<a>").repeated(500'000), {});
        row("growing text",
            "<!DOCTYPE plist [<!ENTITY e \"grown\">]><plist><dict>&e;</dict></plist>", {});
        row("no plist", "<a/>", "No <plist> element found at the top-level of the XML file!");
        const auto dict = [](const QByteArray &content) {
            return "<plist><dict>" + content + "</dict></plist>";
        };
        row("date", dict("<key>k</key><date>2020</date>"), "<date> not yet supported");
        row("no key", dict("<string>s</string>"), "<key> missing in <dict>");
        row("unknown", dict("<key>k</key><odd/>"), "Unknown element type <odd>");
        row("key without value", dict("<key>k</key>"), "Unknown element type <>");
    }

    void failures()
    {
        QFETCH(QByteArray, data);
        QFETCH(QString, message);
        try {
            PlistLoader::parse(data);
        } catch (const Error &error) {
            QVERIFY(!error.toString().isEmpty());
            if (!message.isEmpty())
                QCOMPARE(error.toString(), message);
            return;
        }
        QFAIL("It was taken.");
    }
};

QTEST_GUILESS_MAIN(tst_Plist)
#include "tst_plist.moc"
