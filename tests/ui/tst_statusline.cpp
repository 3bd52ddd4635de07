#include "PanelFixture.h"

#include "base/GTranslationLoader.h"
#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/ISelectionModel.h"
#include "catalogue/records/Thread.h"
#include "support/CatalogueFolder.h"
#include "ui/StatusLine.h"

#include <algorithm>
#include <QLabel>
#include <QSlider>
#include <QtTest>

namespace {

using Files = QList<QSharedPointer<IFile>>;

void describe(IFile &file, Project *project, int stitches, const QList<QColor> &colors)
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

bool says(const StatusLine &line, const QString &text)
{
    const auto labels = line.findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(),
                       [&text](const QLabel *label) { return label->text() == text; });
}

} // namespace

class tst_StatusLine : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void counts_data();
    void counts();
    void countsOfACatalogueThatChanges();
    void countsManyDesigns();
    void zooms();
    void tellsWhatIsDone();

private:
    CatalogueFolder m_folder;
};

void tst_StatusLine::initTestCase()
{
    Q_INIT_RESOURCE(translations);
    GSettings().setUiLanguage(QStringLiteral("en"));
    GTranslationLoader::instance()->setTranslations(QCoreApplication::instance());
}

void tst_StatusLine::counts_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QVector<int>>("selection");
    QTest::addColumn<QString>("text");
    QTest::newRow("all") << "" << QVector<int>{} << "3 designs · 12,345 stitches · 3 colors";
    QTest::newRow("one selected") << "" << QVector<int>{0}
                                  << "3 designs · 1 selected · 12,000 stitches · 2 colors";
    // A colour that both have is one colour.
    QTest::newRow("two selected") << "" << QVector<int>{0, 1}
                                  << "3 designs · 2 selected · 12,344 stitches · 3 colors";
    QTest::newRow("filtered") << "2" << QVector<int>{} << "1 design · 1 stitch · 1 color";
    QTest::newRow("nothing found")
        << "zzz" << QVector<int>{} << "0 designs · 0 stitches · 0 colors";
}

void tst_StatusLine::counts()
{
    QFETCH(QString, search);
    QFETCH(QVector<int>, selection);
    QFETCH(QString, text);
    const auto project = projectOfSize(3);
    describe(*project->files().at(0), project.data(), 12000, {Qt::red, Qt::green});
    describe(*project->files().at(1), project.data(), 344, {Qt::red, Qt::blue});
    describe(*project->files().at(2), project.data(), 1, {Qt::blue, Qt::blue, QColor()});
    FilterSelectionModel models(project);
    models.filter()->refreshFilter();
    StatusLine line(nullptr, &models);
    line.show();
    models.filter()->setSearchSubstring(search);
    Files selected;
    for (const int index : qAsConst(selection))
        selected.append(project->files().at(index));
    models.selection()->setSelection(selected);
    QTRY_VERIFY2(says(line, text), qPrintable(line.findChild<QLabel *>()->text()));
}

void tst_StatusLine::countsOfACatalogueThatChanges()
{
    const auto project = projectOfSize(2);
    FilterSelectionModel models(project);
    models.filter()->refreshFilter();
    StatusLine line(nullptr, &models);
    line.show();
    QTRY_VERIFY(says(line, QStringLiteral("2 designs · 0 stitches · 0 colors")));
    describe(*project->files().at(0), project.data(), 7, {Qt::red});
    line.refresh();
    QTRY_VERIFY(says(line, QStringLiteral("2 designs · 7 stitches · 1 color")));
    project->setFiles(project->files().mid(1));
    QTRY_VERIFY(says(line, QStringLiteral("1 design · 0 stitches · 0 colors")));
}

// More than one slice of them; a count that is overtaken leaves no trace.
void tst_StatusLine::countsManyDesigns()
{
    constexpr int Count = 20000;
    const auto project = projectOfSize(Count);
    const Files files = project->files();
    for (const auto &file : files)
        file->setStitchCount(100000);
    FilterSelectionModel models(project);
    models.filter()->refreshFilter();
    StatusLine line(nullptr, &models);
    line.show();
    for (const int selected : {Count, 5, Count - 1, 0}) {
        models.selection()->setSelection(files.mid(0, selected));
        line.refresh();
        QCoreApplication::processEvents();
    }
    QTRY_VERIFY(says(line, QStringLiteral("20,000 designs · 2,000,000,000 stitches · 0 colors")));
}

void tst_StatusLine::zooms()
{
    const auto project = projectOfSize(1);
    FilterSelectionModel models(project);
    StatusLine line(nullptr, &models);
    line.show();
    QSignalSpy chosen(&line, &StatusLine::zoomStepChosen);
    line.setZoomSteps(6);
    line.showZoom(100, 3);
    QVERIFY(says(line, QStringLiteral("100%")));
    QCOMPARE(chosen.count(), 0);
    auto *slider = line.findChild<QSlider *>();
    QTest::keyClick(slider, Qt::Key_Right);
    QTest::keyClick(slider, Qt::Key_Home);
    QTest::keyClick(slider, Qt::Key_PageUp);
    QCOMPARE(chosen, (QList<QVariantList>{{4}, {0}, {1}}));
}

void tst_StatusLine::tellsWhatIsDone()
{
    const auto project = projectOfSize(1);
    FilterSelectionModel models(project);
    StatusLine line(nullptr, &models);
    line.show();
    line.setActivity(QStringLiteral("<b>Scanning"));
    QVERIFY(says(line, QStringLiteral("<b>Scanning")));
    line.setActivity(QString());
    QVERIFY(!says(line, QStringLiteral("<b>Scanning")));
}

QTEST_MAIN(tst_StatusLine)
#include "tst_statusline.moc"
