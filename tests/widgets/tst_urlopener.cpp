#include "support/MessageBoxes.h"
#include "support/Rows.h"
#include "widgets/controls/UrlOpener.h"

#include <QDesktopServices>
#include <QtTest>

/** What the user is told when the desktop has nothing to open an address with. */
class tst_urlopener : public QObject
{
    Q_OBJECT

private slots:
    void deadEnds_data()
    {
        const Rows<QByteArray, QUrl, QString> row("tool", "url", "told");
        const QUrl page("https://page.example/a?b=%3Cimg%3E&c");
        const QUrl folder = QUrl::fromLocalFile("/a b/<c>");
        const QString noBrowser = "https://page.example/a?b=%3Cimg%3E&c";
        row("no tool, page", {}, page, noBrowser);
        row("no tool, folder", {}, folder, "/a b/<c>");
        row("no browser", "exit 3", page, noBrowser);
        row("no file manager", "exit 4", folder, "/a b/<c>");
        row("no mail", "exit 3", QUrl("mailto:a@b.example"), "a@b.example");
        row("opened", "exit 0", page, {});
        row("browser went wrong later", "exit 1", page, {});
    }

    void deadEnds()
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
            told = "https://second.example";
            writeTool(folder, "exit 3");
            QDesktopServices::openUrl(QUrl(told));
        }
        QTRY_COMPARE(boxes.informativeText(), told);
        QCOMPARE(boxes.count(), 1);
    }

private:
    static void writeTool(const QTemporaryDir &folder, const QByteArray &end)
    {
        QFile script(folder.filePath("xdg-open"));
        script.remove();
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\necho \"$1\" >'" + folder.path().toLocal8Bit() + "/asked'\n" + end);
        script.close();
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    }

    static QByteArray asked(const QTemporaryDir &folder)
    {
        QFile file(folder.filePath("asked"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    }
};

QTEST_MAIN(tst_urlopener)
#include "tst_urlopener.moc"
