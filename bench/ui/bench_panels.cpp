#include "ui/PanelFixture.h"

#include "base/GSettings.h"
#include "catalogue/models/FilterModel.h"
#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/ISelectionModel.h"
#include "catalogue/userdata/RememberedValues.h"
#include "ui/CenterView.h"
#include "ui/panels/PropertiesBox.h"
#include "ui/panels/TagLabel.h"
#include "ui/panels/TagsBox.h"
#include "ui/panels/TagWidget.h"
#include "ui/RightSidebar.h"

#include <QTemporaryDir>
#include <QTextEdit>
#include <QtTest>

/** Edits of 1,000 selected of 100,000 designs, with all panels and the filter listening. */
class bench_panels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void select();
    void addTag();
    void removeTag();
    void removeShownTag();
    void typeNote();
    void showSelection();
    void selectEverything();

private:
    static constexpr int Designs = 100000;
    static constexpr int Selected = 1000;

    QTemporaryDir m_dir;
    QSharedPointer<Project> m_project;
    std::unique_ptr<FilterModel> m_filter;
    std::unique_ptr<TagsBox> m_tagsBox;
    std::unique_ptr<PropertiesBox> m_box;
    QList<QSharedPointer<IFile>> m_selection;
};

void bench_panels::initTestCase()
{
    GSettings::setIniFile(m_dir.filePath(QStringLiteral("settings.ini")));
    m_project = projectOfSize(Designs);
    m_filter = std::make_unique<FilterModel>(m_project);
    m_tagsBox = std::make_unique<TagsBox>(nullptr, m_project, m_filter.get());
    m_box = std::make_unique<PropertiesBox>(nullptr, m_project);
    m_box->resize(260, 600);
    m_box->show();
    m_selection = m_project->files().mid(0, Selected);
}

void bench_panels::init()
{
    m_project->undoStack()->clear();
    m_box->setFiles(m_selection);
}

void bench_panels::select()
{
    QBENCHMARK
    {
        m_box->setFiles({});
        m_box->setFiles(m_selection);
    }
}

void bench_panels::addTag()
{
    auto *tags = m_box->findChild<TagWidget *>();
    int number = 0;
    QBENCHMARK
    {
        tags->addTag(QStringLiteral("tag %1").arg(++number));
        QCoreApplication::processEvents();
    }
}

void bench_panels::removeTag()
{
    auto *tags = m_box->findChild<TagWidget *>();
    tags->addTag(QStringLiteral("passing"));
    TagLabel chip(QStringLiteral("passing"), TagLabel::SetOnAll, nullptr);
    QBENCHMARK_ONCE
    {
        tags->removeTag(&chip);
        QCoreApplication::processEvents();
    }
}

void bench_panels::removeShownTag()
{
    const QString tag = QStringLiteral("shown");
    for (const QSharedPointer<IFile> &file : qAsConst(m_selection))
        file->tagsProp()->setValueWithoutUndoAndAnnounceChange({tag});
    FilterSelectionModel models(m_project);
    RememberedValues values;
    CenterView center(nullptr, m_project, &models, &values);
    RightSidebar right(nullptr, m_project, models.selection());
    center.show();
    right.show();
    models.filter()->setTag(tag);
    models.selection()->setSelection(models.filter()->filteredFiles());
    TagLabel chip(tag, TagLabel::SetOnAll, nullptr);
    QBENCHMARK_ONCE
    {
        right.findChild<TagWidget *>()->removeTag(&chip);
        QCoreApplication::processEvents();
    }
    QVERIFY(models.filter()->filteredFiles().isEmpty());
    QVERIFY(models.selection()->selectedFiles().isEmpty());
}

void bench_panels::typeNote()
{
    auto *edit = m_box->findChild<QTextEdit *>();
    QBENCHMARK
    {
        QTest::keyClick(edit, Qt::Key_A);
        QCoreApplication::processEvents();
    }
}

void bench_panels::showSelection()
{
    QBENCHMARK
    {
        m_box->findChild<TagWidget *>()->refreshProperties();
    }
}

void bench_panels::selectEverything()
{
    const QList<QSharedPointer<IFile>> all = m_project->files();
    QBENCHMARK_ONCE
    {
        m_box->setFiles(all);
    }
}

QTEST_MAIN(bench_panels)
#include "bench_panels.moc"
