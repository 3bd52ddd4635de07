#include "PanelFixture.h"

#include "app/base/GlobalSettings.h"
#include "catalogue/models/FilterModel.h"
#include "catalogue/records/Thread.h"
#include "ui/panels/ColorsBox.h"
#include "ui/panels/DirectoriesBox.h"
#include "ui/panels/ElidedLabel.h"
#include "ui/panels/PropertiesBox.h"
#include "ui/panels/TagListWidget.h"
#include "ui/panels/TagsBox.h"
#include "widgets/controls/GExpandingTitle.h"
#include "widgets/controls/GTreeView.h"

#include <functional>
#include <QApplication>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

namespace {

/** Answers the next modal message box and tells what it said. */
class Answer
{
public:
    explicit Answer(QMessageBox::StandardButton button)
    {
        QTimer::singleShot(0, &m_context, [this, button] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            text = box->text();
            informativeText = box->informativeText();
            box->button(button)->click();
        });
    }

    QString text;
    QString informativeText;

private:
    QObject m_context;
};

} // namespace

class tst_sidepanels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void folderChoiceFilters();
    void folderFilterSelects();
    void rescanKeepsOneLevelAndSelection();
    void folderDrop();
    void addTag();
    void refusedTagNames();
    void renameTagFollowsTheFilter();
    void removeTagAsks();
    void unusedTags_data();
    void unusedTags();

    void factsOfOneFile();
    void countOfManyFiles();
    void factsFollowTheFile();
    void notesAndTagsOfAll();
    void recordsOutliveTheirEditors();
    void colors();
    void longNamesDontWidenThePanel();

private:
    QTemporaryDir m_dir;
    QSharedPointer<Project> m_project;
    std::unique_ptr<FilterModel> m_filter;
    QSharedPointer<IFile> file(int index) const { return m_project->files().at(index); }
    static QStringList valueTexts(const QWidget &panel);
};

void tst_sidepanels::initTestCase()
{
    GSettings::setIniFile(m_dir.filePath(QStringLiteral("settings.ini")));
    GlobalSettings().setImperialUnits(false);
}

void tst_sidepanels::init()
{
    m_project = projectWithFiles({QStringLiteral("/a/sub/deep/1.pes"), QStringLiteral("/a/2.pes"),
                                  QStringLiteral("/b/3.pes")});
    m_project->setSmartFolders({QStringLiteral("/a"), QStringLiteral("/b")}, QString());
    m_filter = std::make_unique<FilterModel>(m_project);
}

void tst_sidepanels::cleanup()
{
    m_filter.reset();
    m_project.reset();
}

QStringList tst_sidepanels::valueTexts(const QWidget &panel)
{
    QStringList texts;
    const auto labels = panel.findChildren<ElidedLabel *>();
    for (const ElidedLabel *label : labels)
        texts += label->text();
    return texts;
}

void tst_sidepanels::folderChoiceFilters()
{
    DirectoriesBox box(nullptr, m_project, m_filter.get());
    box.show();
    auto *tree = box.findChild<GTreeView *>();
    QVERIFY(tree->isExpanded(tree->model()->index(0, 0)));
    tree->setCurrentIndex(tree->model()->index(1, 0));
    QCOMPARE(m_filter->directoryFilter(), QStringLiteral("/b"));
    QTest::keyClick(tree, Qt::Key_Escape);
    QVERIFY(m_filter->directoryFilter().isEmpty());
    QCOMPARE(m_filter->filteredFiles().count(), 3);
}

void tst_sidepanels::folderFilterSelects()
{
    DirectoriesBox box(nullptr, m_project, m_filter.get());
    auto *tree = box.findChild<GTreeView *>();
    m_filter->setDirectory(QStringLiteral("/a/sub/deep"));
    QCOMPARE(tree->selectionModel()->selectedRows().count(), 1);
    QCOMPARE(tree->currentIndex().data().toString(), QStringLiteral("deep"));
    m_filter->setDirectory(QString());
    QCOMPARE(tree->selectionModel()->selectedRows().count(), 1);
}

void tst_sidepanels::rescanKeepsOneLevelAndSelection()
{
    DirectoriesBox box(nullptr, m_project, m_filter.get());
    auto *tree = box.findChild<GTreeView *>();
    m_filter->setDirectory(QStringLiteral("/b"));
    m_project->setFiles(m_project->files());
    QVERIFY(tree->isExpanded(tree->model()->index(0, 0)));
    QCOMPARE(tree->currentIndex().data().toString(), QStringLiteral("b"));
    QCOMPARE(m_filter->directoryFilter(), QStringLiteral("/b"));
}

void tst_sidepanels::folderDrop()
{
    DirectoriesBox box(nullptr, m_project, m_filter.get());
    box.resize(200, 300);
    box.show();
    QSignalSpy dropped(&box, &DirectoriesBox::filesDropped);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(m_dir.path())});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&box, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&box, &drop);
    QVERIFY(drop.isAccepted());
    QTRY_COMPARE(dropped.count(), 1);
    QCOMPARE(dropped.first().first().toStringList(), QStringList{m_dir.path()});
}

void tst_sidepanels::addTag()
{
    TagsBox box(nullptr, m_project, m_filter.get());
    box.show();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    auto *list = box.findChild<TagListWidget *>();
    const auto buttons = box.titleBar()->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (button->accessibleName() == QLatin1String("Add tag"))
            button->click();
    }
    auto *editor = list->findChild<QLineEdit *>();
    QVERIFY(editor);
    QTest::keyClicks(editor, QStringLiteral("rose"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(m_project->allTags(), QStringList{QStringLiteral("rose")});
    QCOMPARE(list->model()->rowCount(), 2);
}

void tst_sidepanels::refusedTagNames()
{
    m_project->setAllTags({QStringLiteral("rose")});
    TagsBox box(nullptr, m_project, m_filter.get());
    auto *list = box.findChild<TagListWidget *>();
    Answer empty(QMessageBox::Ok);
    box.onTagAdded(QString());
    QCOMPARE(empty.informativeText, QStringLiteral("Empty tag name not allowed!"));
    Answer exists(QMessageBox::Ok);
    box.onTagRenamed(QStringLiteral("rose"), QStringLiteral("rose"));
    QCOMPARE(exists.informativeText, QStringLiteral("Tag with this name already exists!"));
    QCOMPARE(list->model()->rowCount(), 2);
    box.onTagRenamed(QStringLiteral("rose"), QStringLiteral("Rose"));
    QCOMPARE(m_project->allTags(), QStringList{QStringLiteral("Rose")});
}

void tst_sidepanels::renameTagFollowsTheFilter()
{
    file(0)->setTags({QStringLiteral("rose")});
    m_project->setAllTags({QStringLiteral("rose")});
    TagsBox box(nullptr, m_project, m_filter.get());
    auto *list = box.findChild<TagListWidget *>();
    list->selectTag(QStringLiteral("rose"));
    QCOMPARE(m_filter->filteredFiles().count(), 1);
    m_project->undoStack()->clear();
    list->startRenamingTag();
    auto *editor = list->findChild<QLineEdit *>();
    editor->setText(QStringLiteral("lily"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(m_filter->tagFilter(), QStringLiteral("lily"));
    QCOMPARE(m_filter->filteredFiles().count(), 1);
    QCOMPARE(list->selectedTag(), QStringLiteral("lily"));
    QCOMPARE(m_project->undoStack()->count(), 1);
    QCOMPARE(m_project->undoStack()->undoText(), QStringLiteral("rename tag"));
}

void tst_sidepanels::removeTagAsks()
{
    for (int i = 0; i < 3; ++i)
        file(i)->setTags({QStringLiteral("rose")});
    m_project->setAllTags({QStringLiteral("lily"), QStringLiteral("rose")});
    TagsBox box(nullptr, m_project, m_filter.get());
    auto *list = box.findChild<TagListWidget *>();
    list->selectTag(QStringLiteral("rose"));
    Answer no(QMessageBox::No);
    box.removeTag();
    QCOMPARE(no.text, QStringLiteral("This tag is attached to 3 files"));
    QCOMPARE(m_project->allTags().count(), 2);
    Answer yes(QMessageBox::Yes);
    m_project->undoStack()->clear();
    QSignalSpy filtered(m_filter.get(), &FilterModel::filterChanged);
    box.removeTag();
    QVERIFY(file(0)->tags().isEmpty());
    QVERIFY(m_filter->tagFilter().isEmpty());
    QVERIFY(filtered.count() <= 1);
    QCOMPARE(m_project->undoStack()->count(), 1);
    QCOMPARE(m_project->undoStack()->undoText(), QStringLiteral("remove tag"));

    list->selectTag(QStringLiteral("lily"));
    Answer unasked(QMessageBox::No);
    box.removeTag();
    QVERIFY(m_project->allTags().isEmpty());
    QVERIFY(unasked.text.isEmpty());
}

void tst_sidepanels::unusedTags_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("lines");
    QTest::newRow("ten are listed") << 10 << 10;
    QTest::newRow("eleven are cut") << 11 << 10;
}

void tst_sidepanels::unusedTags()
{
    QFETCH(int, count);
    QFETCH(int, lines);
    QStringList tags;
    for (int i = 0; i < count; ++i)
        tags += QStringLiteral("tag %1").arg(i);
    file(0)->setTags({QStringLiteral("used")});
    m_project->setAllTags(tags + QStringList(QStringLiteral("used")));
    TagsBox box(nullptr, m_project, m_filter.get());
    Answer yes(QMessageBox::Yes);
    box.removeUnusedTags();
    QCOMPARE(yes.text, QStringLiteral("Delete %1 unused tags?").arg(count));
    QCOMPARE(yes.informativeText.split(QLatin1Char('\n')).count(), lines);
    QCOMPARE(yes.informativeText.endsWith(QLatin1String("\n...")), count > 10);
    QCOMPARE(m_project->allTags(), QStringList{QStringLiteral("used")});
}

void tst_sidepanels::factsOfOneFile()
{
    PropertiesBox box(nullptr, m_project);
    box.show();
    QVERIFY(valueTexts(box).contains(QStringLiteral("no file selected")));
    file(0)->setDesignSize(QSizeF(94.6, 120.2));
    file(0)->setStitchCount(10311);
    box.setFiles({file(0)});
    const QStringList texts = valueTexts(box);
    QVERIFY(texts.contains(QStringLiteral("2.pes")));
    QVERIFY(texts.contains(QStringLiteral("95mm x 120mm")));
    QVERIFY(texts.contains(QStringLiteral("10311")));
    QVERIFY(texts.contains(QStringLiteral("0")));
}

void tst_sidepanels::countOfManyFiles()
{
    PropertiesBox box(nullptr, m_project);
    box.setFiles({file(0), file(1), file(2)});
    QVERIFY(valueTexts(box).contains(QStringLiteral("3 files selected")));
    QCOMPARE(valueTexts(box).count(QStringLiteral("-")), 4);
}

void tst_sidepanels::factsFollowTheFile()
{
    PropertiesBox box(nullptr, m_project);
    box.show();
    box.setFiles({file(0)});
    const auto nameShown = [&box](const QString &name) {
        const auto labels = box.findChildren<ElidedLabel *>();
        return std::any_of(labels.begin(), labels.end(), [&name](const ElidedLabel *label) {
            return label->text() == name && label->isVisible();
        });
    };
    file(0)->setName(QStringLiteral("Cushion"));
    QVERIFY(nameShown(QStringLiteral("Cushion")));
    file(0)->setAbsoluteFilePath(QStringLiteral("/a/Cushion"));
    QCOMPARE(valueTexts(box).count(QStringLiteral("Cushion")), 2);
    QVERIFY(nameShown(QStringLiteral("Cushion")));
    const auto hiddenCount = [&box] {
        const auto labels = box.findChildren<ElidedLabel *>();
        return std::count_if(labels.begin(), labels.end(),
                             [](const ElidedLabel *label) { return label->isHidden(); });
    };
    QCOMPARE(hiddenCount(), 1);
    box.setFiles({file(1)});
    file(0)->setStitchCount(77);
    QVERIFY(!valueTexts(box).contains(QStringLiteral("77")));
}

void tst_sidepanels::notesAndTagsOfAll()
{
    PropertiesBox box(nullptr, m_project);
    box.show();
    box.setFiles({file(0), file(2)});
    QTest::keyClicks(box.findChild<QTextEdit *>(), QStringLiteral("n"));
    QCOMPARE(file(0)->notes(), QStringLiteral("n"));
    QVERIFY(file(1)->notes().isEmpty());
    QCOMPARE(file(2)->notes(), QStringLiteral("n"));
    box.setFiles({});
    QVERIFY(!box.findChild<QTextEdit *>()->isEnabled());
}

void tst_sidepanels::recordsOutliveTheirEditors()
{
    struct Record : File
    {
        Record(Project *project, const std::function<void()> &atEnd) : File(project), m_atEnd(atEnd)
        {
        }
        ~Record() override { m_atEnd(); }

        std::function<void()> m_atEnd;
    };
    PropertiesBox box(nullptr, m_project);
    const auto *edit = box.findChild<QTextEdit *>();
    QList<bool> editedAtEnd;
    const auto atEnd = [&] { editedAtEnd += edit->isEnabled(); };
    box.setFiles({QSharedPointer<Record>::create(m_project.data(), atEnd),
                  QSharedPointer<Record>::create(m_project.data(), atEnd)});
    QVERIFY(edit->isEnabled());
    box.setFiles({});
    QCOMPARE(editedAtEnd, (QList<bool>{false, false}));
}

void tst_sidepanels::colors()
{
    ColorsBox box(nullptr);
    auto *tree = box.findChild<QTreeWidget *>();
    QList<QSharedPointer<IThread>> threads;
    for (int i = 0; i < 20; ++i) {
        auto thread = QSharedPointer<Thread>::create(m_project.data());
        thread->setColor(Qt::red);
        threads += thread;
    }
    threads.first()->setColorName(QStringLiteral("Carmine"));
    box.setFiles({file(0)});
    file(0)->setThreads(threads);
    QCOMPARE(tree->topLevelItemCount(), 20);
    QCOMPARE(tree->topLevelItem(0)->text(1), QStringLiteral("Carmine"));
    QCOMPARE(tree->topLevelItem(0)->text(2), QStringLiteral("undefined"));
    QCOMPARE(tree->topLevelItem(0)->sizeHint(0), QSize(0, 30));
    box.resize(240, 400);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const QRect cell = tree->visualItemRect(tree->topLevelItem(0));
    QCOMPARE(cell.height(), 30);
    const QImage image = tree->viewport()->grab().toImage();
    QCOMPARE(image.pixelColor(15, cell.center().y()), QColor(Qt::red));
    box.setFiles({file(0), file(1)});
    QCOMPARE(tree->topLevelItemCount(), 0);
}

void tst_sidepanels::longNamesDontWidenThePanel()
{
    PropertiesBox box(nullptr, m_project);
    const int before = box.minimumSizeHint().width();
    file(0)->setAbsoluteFilePath(QStringLiteral("/a/") + QString(500, QLatin1Char('W')));
    file(0)->setName(QStringLiteral("<b>") + QString(500, QLatin1Char('M')));
    file(0)->setTags({QString(500, QLatin1Char('T'))});
    box.setFiles({file(0)});
    QVERIFY(box.minimumSizeHint().width() <= before + 40);
    box.resize(260, 600);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const auto labels = box.findChildren<QLabel *>();
    for (const QLabel *label : labels)
        QCOMPARE(label->textFormat(), Qt::PlainText);
}

QTEST_MAIN(tst_sidepanels)
#include "tst_sidepanels.moc"
