#include "base/GTranslationLoader.h"
#include "support/Rows.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTest>
#include <QTranslator>

/** The pictures, texts and translations that are compiled into the program. */
class TestResources : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Q_INIT_RESOURCE(hoopline_resources);
        Q_INIT_RESOURCE(tnw_resources);
        Q_INIT_RESOURCE(translations);
        Q_INIT_RESOURCE(tnw_translations);
    }

    /** Every icon is valid, leaves a picture at 16 pixels and does not touch the edge. */
    void iconsDraw()
    {
        for (const char *folder : {":/icons", ":/tnw_tools/icons"}) {
            for (QDirIterator it(folder); it.hasNext();) {
                const QString path = it.next();
                QSvgRenderer renderer(path);
                QVERIFY2(renderer.isValid(), qPrintable(path));
                // The pictures of message boxes are larger, and are icons otherwise.
                const int side = it.fileName().startsWith("Box_") ? 48 : 24;
                QCOMPARE(renderer.defaultSize(), QSize(side, side));
                QImage image(26, 26, QImage::Format_ARGB32_Premultiplied);
                image.fill(Qt::transparent);
                QPainter painter(&image);
                renderer.render(&painter, QRectF(1, 1, 24, 24));
                painter.end();
                int inked = 0;
                for (int y = 0; y < 26; ++y) {
                    for (int x = 0; x < 26; ++x) {
                        const bool ink = qAlpha(image.pixel(x, y)) > 100;
                        inked += ink;
                        QVERIFY2(!ink || (x > 1 && x < 24 && y > 1 && y < 24), qPrintable(path));
                    }
                }
                QVERIFY2(inked > 15, qPrintable(path));
            }
        }
    }

    void translates_data()
    {
        const Rows<QString, QByteArray, QByteArray, QString> row("path", "context", "text",
                                                                 "translation");
        const QByteArray box = "PropertiesBox";
        row("German", ":/translations/de.qm", box, "Number of stitches", "Stichzahl");
        row("Chinese", ":/translations/zh_CN.qm", box, "Number of stitches", "针数");
        row("frame, German", ":/tnw_translations/de.qm", "GApplication", "&File", "&Datei");
        row("frame, Chinese", ":/tnw_translations/zh_CN.qm", "GApplication", "&File", "文件(&F)");
        row("Qt, German", ":/tnw_translations/qt_de.qm", "QPlatformTheme", "Cancel", "Abbrechen");
        row("Qt, Chinese", ":/tnw_translations/qt_zh_CN.qm", "QPlatformTheme", "Cancel", "取消");
    }

    void translates()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, context);
        QFETCH(QByteArray, text);
        QTranslator translator;
        QVERIFY(translator.load(path));
        QTEST(translator.translate(context.constData(), text.constData()), "translation");
    }

    void choosesTheLanguage_data()
    {
        const Rows<QStringList, QString> row("wanted", "chosen");
        row("nothing", {}, "en");
        row("country", {"de-AT"}, "de");
        row("second choice", {"fr-FR", "de-DE"}, "de");
        row("Chinese", {"zh-Hans-CN", "en"}, "zh-CN");
        row("other script", {"zh-Hant-TW"}, "en");
    }

    void choosesTheLanguage()
    {
        QFETCH(QStringList, wanted);
        QTEST(GTranslationLoader::instance()->getBestMatchingLanguage(wanted), "chosen");
    }

    void countsFiles_data()
    {
        const Rows<QString, QString, QString> row("language", "one", "several");
        row("en", "en", "1 file selected", "5 files selected");
        row("de", "de", "1 Datei ausgewählt", "5 Dateien ausgewählt");
        row("zh_CN", "zh_CN", "已选择 1 个文件", "已选择 5 个文件");
    }

    void countsFiles()
    {
        QFETCH(QString, language);
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(":/translations/%1.qm").arg(language)));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        const auto text = [](int n) {
            return QCoreApplication::translate("PropertiesBox", "%n files selected", nullptr, n);
        };
        QTEST(text(1), "one");
        QTEST(text(5), "several");
    }
};

QTEST_MAIN(TestResources)
#include "tst_resources.moc"
