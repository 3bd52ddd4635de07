#include "app/frame/GAction.h"
#include "app/frame/GFileDialog.h"
#include "app/frame/GRecentFileProvider.h"
#include "base/GSettings.h"

#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class tst_frame : public QObject
{
    Q_OBJECT

public slots:
    void slotOfParent() { ++m_calls; }

private slots:
    void init();
    void actionCallsSlotOfParent();
    void showsFiveRecentFiles();
    void sharesChangesAmongProviders();
    void opensLastExistingFile();
    void buildsFilters_data();
    void buildsFilters();

private:
    QString createFile(const QString &name) const;

    QTemporaryDir m_directory;
    int m_calls = 0;
};

void tst_frame::init()
{
    GSettings::setIniFile(m_directory.filePath(QStringLiteral("settings.ini")));
    GSettings().flushSettings({});
}

QString tst_frame::createFile(const QString &name) const
{
    QFile file(m_directory.filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

void tst_frame::actionCallsSlotOfParent()
{
    GAction action(QStringLiteral("Save"), this, SLOT(slotOfParent()));
    action.trigger();
    QCOMPARE(m_calls, 1);
    QCOMPARE(action.menuRole(), QAction::NoRole);
    QVERIFY(!action.isIconVisibleInMenu());
    QVERIFY(GAction::separator(&action)->isSeparator());
}

void tst_frame::showsFiveRecentFiles()
{
    QStringList names;
    for (int i = 1; i <= 7; ++i)
        names.append(QStringLiteral("/designs/file %1.dst").arg(i));
    GSettings().setValue(QStringLiteral("recentFileList"), names);
    GRecentFileProvider provider;
    QMenu menu;
    provider.addRecentMenuActions(&menu);
    const QList<GAction *> actions = provider.recentFileActions();
    QCOMPARE(actions.size(), 5);
    QCOMPARE(menu.actions().size(), 5);
    QCOMPARE(actions.first()->text(), QStringLiteral("&1 file 1.dst"));
    QCOMPARE(actions.last()->text(), QStringLiteral("&5 file 5.dst"));
    QVERIFY(actions.last()->isVisible());

    provider.updateRecentFileActions(names.mid(0, 2));
    QVERIFY(actions.at(1)->isVisible());
    QVERIFY(!actions.at(2)->isVisible());

    QSignalSpy loadFile(&provider, &GRecentFileProvider::loadFile);
    actions.at(1)->trigger();
    QCOMPARE(loadFile.value(0).value(0).toString(), names.at(1));
}

void tst_frame::sharesChangesAmongProviders()
{
    const QString name = createFile(QStringLiteral("rose.dst"));
    GRecentFileProvider first;
    GRecentFileProvider second;
    QSignalSpy refreshed(&first, &GRecentFileProvider::fileListRefreshed);
    first.addToRecentFiles(m_directory.filePath(QStringLiteral("gone.dst")));
    first.addToRecentFiles(name);
    QCOMPARE(refreshed.count(), 1);
    QCOMPARE(second.recentFileActions().first()->data().toString(), name);
    QVERIFY(second.recentFileActions().first()->isVisible());
}

void tst_frame::opensLastExistingFile()
{
    const QString name = createFile(QStringLiteral("leaf.dst"));
    GSettings().setValue(QStringLiteral("recentFileList"),
                         QStringList{m_directory.filePath(QStringLiteral("gone.dst")), name});
    GRecentFileProvider provider;
    QSignalSpy loadFile(&provider, &GRecentFileProvider::loadFile);
    provider.openLastFile();
    QCOMPARE(loadFile.count(), 1);
    QCOMPARE(loadFile.first().first().toString(), name);
}

void tst_frame::buildsFilters_data()
{
    QTest::addColumn<bool>("known");
    QTest::addColumn<bool>("all");
    QTest::addColumn<QString>("filter");
    QTest::newRow("plain") << false << false << "Tajima (*.dst);;Brother (*.pes)";
    QTest::newRow("known") << true << false
                           << "All known types (*.dst *.pes);;Tajima (*.dst);;Brother (*.pes)";
    QTest::newRow("all") << false << true << "Tajima (*.dst);;Brother (*.pes);;All files (*.*)";
}

void tst_frame::buildsFilters()
{
    QFETCH(bool, known);
    QFETCH(bool, all);
    const KeyValueList<QString> map = {{QStringLiteral(".dst"), QStringLiteral("Tajima")},
                                       {QStringLiteral(".pes"), QStringLiteral("Brother")}};
    QTEST(GFileDialog::buildFilterFromMap(map, known, all), "filter");
}

QTEST_MAIN(tst_frame)
#include "tst_frame.moc"
