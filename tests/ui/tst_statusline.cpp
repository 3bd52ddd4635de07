#include "PanelFixture.h"

#include "base/GTranslationLoader.h"
#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/ISelectionModel.h"
#include "catalogue/records/Thread.h"
#include "support/CatalogueFolder.h"
#include "support/Rows.h"
#include "support/Widgets.h"
#include "ui/StatusLine.h"
#include "widgets/controls/ActivityList.h"
#include "widgets/controls/StatusActivity.h"

#include <algorithm>
#include <QDialog>
#include <QLabel>
#include <QSlider>
#include <QtTest>

using Files = QList<QSharedPointer<IFile>>;

static void describe(IFile &file, Project *project, int stitches, const QList<QColor> &colors)
{
    file.setStitchCount(stitches);
    QList<QSharedPointer<IThread>> threads;
    for (const QColor &color : colors) {
        const auto thread = QSharedPointer<Thread>::create(project);
        thread->setColor(color);
        threads.append(thread);
    }
    file.setThreads(threads);
}

class tst_StatusLine : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Q_INIT_RESOURCE(translations);
        GSettings().setUiLanguage("en");
        GTranslationLoader::instance()->setTranslations(QCoreApplication::instance());
    }

    void counts_data()
    {
        const Rows<QString, QVector<int>, QString> row("search", "selection", "text");
        row("all", "", {}, "3 designs · 12,346 stitches · 3 colors");
        row("one selected", "", {0}, "3 designs · 1 selected · 12,001 stitches · 2 colors");
        // A colour that both have is one colour.
        row("two selected", "", {0, 1}, "3 designs · 2 selected · 12,345 stitches · 3 colors");
        row("filtered", "2", {}, "1 design · 1 stitch · 1 color");
        row("nothing found", "zzz", {}, "0 designs · 0 stitches · 0 colors");
    }

    void counts()
    {
        QFETCH(QString, search);
        QFETCH(QVector<int>, selection);
        QFETCH(QString, text);
        const auto project = projectOfSize(3);
        describe(*project->files().at(0), project.data(), 12001, {Qt::red, Qt::green});
        describe(*project->files().at(1), project.data(), 344, {Qt::red, Qt::blue});
        describe(*project->files().at(2), project.data(), 1, {Qt::blue, Qt::blue, QColor()});
        FilterSelectionModel models(project);
        models.filter()->refreshFilter();
        StatusLine line(nullptr, &models, &m_activities);
        line.show();
        models.filter()->setSearchSubstring(search);
        Files selected;
        for (const int index : qAsConst(selection))
            selected.append(project->files().at(index));
        models.selection()->setSelection(selected);
        QTRY_VERIFY2(says(line, text), qPrintable(line.findChild<QLabel *>()->text()));
    }

    void countsOfACatalogueThatChanges()
    {
        const auto project = projectOfSize(2);
        FilterSelectionModel models(project);
        models.filter()->refreshFilter();
        StatusLine line(nullptr, &models, &m_activities);
        line.show();
        QTRY_VERIFY(says(line, "2 designs · 0 stitches · 0 colors"));
        describe(*project->files().at(0), project.data(), 7, {Qt::red});
        line.refresh();
        QTRY_VERIFY(says(line, "2 designs · 7 stitches · 1 color"));
        project->setFiles(project->files().mid(1));
        QTRY_VERIFY(says(line, "1 design · 0 stitches · 0 colors"));
    }

    // More than one slice of them; a count that is overtaken leaves no trace.
    void countsManyDesigns()
    {
        constexpr int Count = 20000;
        const auto project = projectOfSize(Count);
        const Files files = project->files();
        for (const auto &file : files)
            file->setStitchCount(100000);
        FilterSelectionModel models(project);
        models.filter()->refreshFilter();
        StatusLine line(nullptr, &models, &m_activities);
        line.show();
        for (const int selected : {Count, 5, Count - 1, 0}) {
            models.selection()->setSelection(files.mid(0, selected));
            line.refresh();
            QCoreApplication::processEvents();
        }
        QTRY_VERIFY(says(line, "20,000 designs · 2,000,000,000 stitches · 0 colors"));
    }

    void zooms()
    {
        const auto project = projectOfSize(1);
        FilterSelectionModel models(project);
        StatusLine line(nullptr, &models, &m_activities);
        line.show();
        QSignalSpy chosen(&line, &StatusLine::zoomStepChosen);
        line.setZoomSteps(6);
        line.showZoom(100, 3);
        QVERIFY(says(line, "100%"));
        QCOMPARE(chosen.count(), 0);
        auto *slider = line.findChild<QSlider *>();
        QTest::keyClick(slider, Qt::Key_Right);
        QTest::keyClick(slider, Qt::Key_Home);
        QTest::keyClick(slider, Qt::Key_PageUp);
        QCOMPARE(chosen, (QList<QVariantList>{{4}, {0}, {1}}));
    }

    void tellsWhatIsDone()
    {
        const auto project = projectOfSize(1);
        FilterSelectionModel models(project);
        QWidget window;
        QDialog dialog(&window);
        ActivityList activities(&window);
        const StatusLine line(nullptr, &models, &activities);
        QObject work;
        {
            const StatusActivity scan(&dialog, "<b>Scanning");
            QVERIFY(says(line, "<b>Scanning"));
            auto *check = new StatusActivity(&window, "Checking", &work);
            QVERIFY(says(line, "Checking"));
            delete check;
            QVERIFY(says(line, "<b>Scanning"));
            new StatusActivity(&window, "Checking", &work);
        }
        QVERIFY(says(line, "Checking"));
        // What belongs to no window is told nowhere.
        const StatusActivity elsewhere(&work, "Elsewhere");
        qDeleteAll(work.children());
        QVERIFY(says(line, ""));
    }

private:
    CatalogueFolder m_folder;
    ActivityList m_activities;
};

QTEST_MAIN(tst_StatusLine)
#include "tst_statusline.moc"
