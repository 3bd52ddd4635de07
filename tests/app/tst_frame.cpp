#include "app/frame/GAction.h"
#include "app/frame/GFileDialog.h"
#include "app/frame/GRecentFileProvider.h"
#include "base/GSettings.h"
#include "support/Rows.h"

#include <QMenu>
#include <QtTest>

class tst_frame : public QObject
{
    Q_OBJECT

public slots:
    void slotOfParent() { ++m_calls; }

private slots:
    void init()
    {
        GSettings::setIniFile(m_directory.filePath("settings.ini"));
        GSettings().flushSettings({});
    }

    void actionCallsSlotOfParent()
    {
        GAction action("Save", this, SLOT(slotOfParent()));
        action.trigger();
        QCOMPARE(m_calls, 1);
        QCOMPARE(action.menuRole(), QAction::NoRole);
        QVERIFY(!action.isIconVisibleInMenu());
        QVERIFY(GAction::separator(&action)->isSeparator());
    }

    void showsFiveRecentFiles()
    {
        QStringList names;
        for (int i = 1; i <= 7; ++i)
            names.append(QStringLiteral("/designs/file %1.dst").arg(i));
        GSettings().setValue("recentFileList", names);
        GRecentFileProvider provider;
        QMenu menu;
        provider.addRecentMenuActions(&menu);
        const QList<GAction *> actions = provider.recentFileActions();
        QCOMPARE(actions.size(), 5);
        QCOMPARE(menu.actions().size(), 5);
        QCOMPARE(actions.first()->text(), "&1 file 1.dst");
        QCOMPARE(actions.last()->text(), "&5 file 5.dst");
        QVERIFY(actions.last()->isVisible());

        provider.updateRecentFileActions(names.mid(0, 2));
        QVERIFY(actions.at(1)->isVisible());
        QVERIFY(!actions.at(2)->isVisible());

        QSignalSpy loadFile(&provider, &GRecentFileProvider::loadFile);
        actions.at(1)->trigger();
        QCOMPARE(loadFile.value(0).value(0).toString(), names.at(1));
    }

    void sharesChangesAmongProviders()
    {
        const QString name = createFile("rose.dst");
        GRecentFileProvider first;
        GRecentFileProvider second;
        QSignalSpy refreshed(&first, &GRecentFileProvider::fileListRefreshed);
        first.addToRecentFiles(m_directory.filePath("gone.dst"));
        first.addToRecentFiles(name);
        QCOMPARE(refreshed.count(), 1);
        QCOMPARE(second.recentFileActions().first()->data().toString(), name);
        QVERIFY(second.recentFileActions().first()->isVisible());
    }

    void opensLastExistingFile()
    {
        const QString name = createFile("leaf.dst");
        GSettings().setValue("recentFileList", QStringList{m_directory.filePath("gone.dst"), name});
        GRecentFileProvider provider;
        QSignalSpy loadFile(&provider, &GRecentFileProvider::loadFile);
        provider.openLastFile();
        QCOMPARE(loadFile.count(), 1);
        QCOMPARE(loadFile.first().first().toString(), name);
    }

    void buildsFilters_data()
    {
        const Rows<bool, bool, QString> row("known", "all", "filter");
        row("plain", false, false, "Tajima (*.dst);;Brother (*.pes)");
        row("known", true, false, "All known types (*.dst *.pes);;Tajima (*.dst);;Brother (*.pes)");
        row("all", false, true, "Tajima (*.dst);;Brother (*.pes);;All files (*.*)");
    }

    void buildsFilters()
    {
        QFETCH(bool, known);
        QFETCH(bool, all);
        const KeyValueList<QString> map = {{".dst", "Tajima"}, {".pes", "Brother"}};
        QTEST(GFileDialog::buildFilterFromMap(map, known, all), "filter");
    }

private:
    QString createFile(const QString &name) const
    {
        QFile file(m_directory.filePath(name));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }

    QTemporaryDir m_directory;
    int m_calls = 0;
};

QTEST_MAIN(tst_frame)
#include "tst_frame.moc"
