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
    void initTestCase();
    void isThere_data();
    void isThere();
    void iconsDraw();
    void translates_data();
    void translates();
    void countsFiles_data();
    void countsFiles();
};

void TestResources::initTestCase()
{
    Q_INIT_RESOURCE(hoopline_resources);
    Q_INIT_RESOURCE(tnw_resources);
    Q_INIT_RESOURCE(translations);
    Q_INIT_RESOURCE(tnw_translations);
}

void TestResources::isThere_data()
{
    QTest::addColumn<QString>("path");
    for (const char *path : {":/about.html",
                             ":/about.de.html",
                             ":/about.zh-CN.html",
                             ":/tracking.html",
                             ":/tracking.de.html",
                             ":/tracking.zh-CN.html",
                             ":/tracking.txt",
                             ":/tracking.de.txt",
                             ":/tracking.zh-CN.txt",
                             ":/hoopline.png",
                             ":/hoopline-mac.png",
                             ":/SplashScreen@2x.png",
                             ":/loading.png",
                             ":/render-error.png",
                             ":/treeview-empty.svg",
                             ":/treeview-empty.dark.svg",
                             ":/tnw_tools/feedback/bug.svg",
                             ":/tnw_tools/feedback/feedback.svg",
                             ":/tnw_tools/feedback/idea.svg",
                             ":/tnw_tools/feedback/question.svg"})
        QTest::newRow(path) << QString::fromLatin1(path);
    for (const char *icon :
         {"addFolder", "exportToUsb", "folder_gray", "removeFolder", "small_all", "small_clear",
          "small_clear_alt", "small_favorite_off", "small_favorite_on",
          "small_favorite_overlay_off", "small_favorite_overlay_on", "small_refresh",
          "small_rename", "small_tag", "small_trash", "sync", "tutorials", "zoomIn", "zoomOut"})
        QTest::newRow(icon) << QStringLiteral(":/icons/%1.svg").arg(QLatin1String(icon));
    for (const char *icon : {"New", "Open", "Save", "Tutorials"})
        QTest::newRow(icon)
            << QStringLiteral(":/tnw_tools/icons/Icons_%1.svg").arg(QLatin1String(icon));
}

void TestResources::isThere()
{
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(path));
    QVERIFY(file.size() > 0);
}

/** Every icon is valid, leaves a picture at 16 pixels and does not touch the edge. */
void TestResources::iconsDraw()
{
    for (const QString &folder : {QStringLiteral(":/icons"), QStringLiteral(":/tnw_tools/icons")}) {
        for (QDirIterator it(folder); it.hasNext();) {
            const QString path = it.next();
            QSvgRenderer renderer(path);
            QVERIFY2(renderer.isValid(), qPrintable(path));
            // The pictures of message boxes are larger, and are icons otherwise.
            const int side = it.fileName().startsWith(QStringLiteral("Box_")) ? 48 : 24;
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

void TestResources::translates_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("context");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("translation");
    const auto row = [](const char *path, const char *context, const char *text,
                        const QString &translation) {
        QTest::newRow(path) << QString::fromLatin1(path) << QByteArray(context) << QByteArray(text)
                            << translation;
    };
    row(":/translations/de.qm", "PropertiesBox", "Number of stitches", QStringLiteral("Stichzahl"));
    row(":/translations/zh_CN.qm", "PropertiesBox", "Number of stitches", QStringLiteral("针数"));
    row(":/tnw_translations/de.qm", "GApplication", "&File", QStringLiteral("&Datei"));
    row(":/tnw_translations/zh_CN.qm", "GApplication", "&File", QStringLiteral("文件(&F)"));
    row(":/tnw_translations/qt_de.qm", "QPlatformTheme", "Cancel", QStringLiteral("Abbrechen"));
    row(":/tnw_translations/qt_zh_CN.qm", "QPlatformTheme", "Cancel", QStringLiteral("取消"));
}

void TestResources::translates()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, context);
    QFETCH(QByteArray, text);
    QFETCH(QString, translation);
    QTranslator translator;
    QVERIFY(translator.load(path));
    QCOMPARE(translator.translate(context.constData(), text.constData()), translation);
}

void TestResources::countsFiles_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("several");
    QTest::newRow("en") << "en"
                        << "1 file selected"
                        << "5 files selected";
    QTest::newRow("de") << "de" << QStringLiteral("1 Datei ausgewählt")
                        << QStringLiteral("5 Dateien ausgewählt");
    QTest::newRow("zh_CN") << "zh_CN" << QStringLiteral("已选择 1 个文件")
                           << QStringLiteral("已选择 5 个文件");
}

void TestResources::countsFiles()
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

QTEST_MAIN(TestResources)
#include "tst_resources.moc"
