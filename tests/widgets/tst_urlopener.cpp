#include "support/MessageBoxes.h"
#include "widgets/controls/UrlOpener.h"

#include <QDesktopServices>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QtTest>
#include <QUrl>

/** What the user is told when the desktop has nothing to open an address with. */
class tst_urlopener : public QObject
{
    Q_OBJECT

private slots:
    void deadEnds_data();
    void deadEnds();

private:
    static void writeTool(const QTemporaryDir &folder, const QByteArray &end);
    static QByteArray asked(const QTemporaryDir &folder);
};

void tst_urlopener::writeTool(const QTemporaryDir &folder, const QByteArray &end)
{
    QFile script(folder.filePath(QStringLiteral("xdg-open")));
    script.remove();
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\necho \"$1\" >'" + folder.path().toLocal8Bit() + "/asked'\n" + end);
    script.close();
    QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
}

QByteArray tst_urlopener::asked(const QTemporaryDir &folder)
{
    QFile file(folder.filePath(QStringLiteral("asked")));
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

void tst_urlopener::deadEnds_data()
{
    QTest::addColumn<QByteArray>("tool");
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QString>("told");
    const QUrl page(QStringLiteral("https://page.example/a?b=%3Cimg%3E&c"));
    const QUrl folder = QUrl::fromLocalFile(QStringLiteral("/a b/<c>"));
    const QString noBrowser = QStringLiteral("https://page.example/a?b=%3Cimg%3E&c");
    QTest::newRow("no tool, page") << QByteArray() << page << noBrowser;
    QTest::newRow("no tool, folder") << QByteArray() << folder << "/a b/<c>";
    QTest::newRow("no browser") << QByteArray("exit 3") << page << noBrowser;
    QTest::newRow("no file manager") << QByteArray("exit 4") << folder << "/a b/<c>";
    QTest::newRow("no mail") << QByteArray("exit 3") << QUrl(QStringLiteral("mailto:a@b.example"))
                             << "a@b.example";
    QTest::newRow("opened") << QByteArray("exit 0") << page << QString();
    QTest::newRow("browser went wrong later") << QByteArray("exit 1") << page << QString();
}

void tst_urlopener::deadEnds()
{
    QFETCH(QByteArray, tool);
    QFETCH(QUrl, url);
    QFETCH(QString, told);
    const QTemporaryDir folder;
    const QByteArray path = qgetenv("PATH");
    const auto restorePath = qScopeGuard([path] { qputenv("PATH", path); });
    qputenv("PATH", folder.path().toLocal8Bit());
    if (!tool.isEmpty())
        writeTool(folder, tool);
    const UrlOpener opener(nullptr);
    const MessageBoxes boxes;
    QDesktopServices::openUrl(url);
    if (!tool.isEmpty())
        QTRY_COMPARE(asked(folder), url.toEncoded());
    if (told.isEmpty()) {
        // By the time of a second failure the first would have been told, too.
        told = QStringLiteral("https://second.example");
        writeTool(folder, "exit 3");
        QDesktopServices::openUrl(QUrl(told));
    }
    QTRY_COMPARE(boxes.informativeText(), told);
    QCOMPARE(boxes.count(), 1);
}

QTEST_MAIN(tst_urlopener)
#include "tst_urlopener.moc"
