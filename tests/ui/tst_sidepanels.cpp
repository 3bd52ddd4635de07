#include "PanelFixture.h"

#include "base/GlobalSettings.h"
#include "catalogue/models/FilterModel.h"
#include "catalogue/records/Thread.h"
#include "support/MessageBoxes.h"
#include "ui/panels/ColorsBox.h"
#include "ui/panels/DirectoriesBox.h"
#include "ui/panels/ElidedLabel.h"
#include "ui/panels/PropertiesBox.h"
#include "ui/panels/TagListWidget.h"
#include "ui/panels/TagsBox.h"
#include "widgets/controls/GExpandingTitle.h"
#include "widgets/controls/GTreeView.h"

#include <functional>
#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

class tst_sidepanels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void folderChoiceFilters();
    void folderDrop_data();
    void folderDrop();
    void addTag();
    void refusedTagNames();
    void renameTagFollowsTheFilter();
    void removeTagAsks();
    void unusedTags_data();
    void unusedTags();

    void facts();
    void notesOfAll();
    void recordsOutliveTheirEditors();
    void colors();

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
    const auto chosen = [tree] {
        const QModelIndexList rows = tree->selectionModel()->selectedRows();
        return rows.isEmpty() ? QString() : rows.first().data().toString();
    };
    tree->setCurrentIndex(tree->model()->index(1, 0));
    QCOMPARE(m_filter->directoryFilter(), QStringLiteral("/b"));
    m_project->setFiles(m_project->files());
    QVERIFY(tree->isExpanded(tree->model()->index(0, 0)));
    QCOMPARE(chosen(), QStringLiteral("b"));
    QCOMPARE(m_filter->directoryFilter(), QStringLiteral("/b"));

    m_filter->setDirectory(QStringLiteral("/a/sub/deep"));
    QCOMPARE(chosen(), QStringLiteral("deep"));
    m_filter->setDirectory(QString());
    QCOMPARE(chosen(), QStringLiteral("deep"));
    m_filter->setDirectory(QStringLiteral("/b"));
    QTest::keyClick(tree, Qt::Key_Escape);
    QVERIFY(m_filter->directoryFilter().isEmpty());
}

void tst_sidepanels::folderDrop_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("modal");
    QTest::addColumn<QStringList>("dropped");
    const QString folder = QStringLiteral("a \"b\" & c\nd");
    const QString file = QStringLiteral("settings.ini");
    QTest::newRow("folder beside a file")
        << QStringList{file, folder} << false << QStringList{folder};
    QTest::newRow("file") << QStringList{file} << false << QStringList();
    QTest::newRow("before a dialog") << QStringList{folder} << true << QStringList();
}

void tst_sidepanels::folderDrop()
{
    QFETCH(QStringList, names);
    QFETCH(bool, modal);
    QFETCH(QStringList, dropped);
    QList<QUrl> urls{QUrl(QStringLiteral("https://example.org/"))};
    for (const QString &name : qAsConst(names))
        urls += QUrl::fromLocalFile(m_dir.filePath(name));
    for (QString &name : dropped) {
        name = m_dir.filePath(name);
        QDir().mkdir(name);
    }
    DirectoriesBox box(nullptr, m_project, m_filter.get());
    box.resize(200, 300);
    box.show();
    QDialog dialog;
    dialog.setModal(true);
    dialog.setVisible(modal);
    QSignalSpy spy(&box, &DirectoriesBox::filesDropped);
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(50, 50), Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    QApplication::sendEvent(&box, &enter);
    QCOMPARE(enter.isAccepted(), !dropped.isEmpty());
    QDropEvent drop(QPointF(50, 50), Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton,
                    Qt::NoModifier);
    QApplication::sendEvent(&box, &drop);
    QCOMPARE(drop.isAccepted(), !dropped.isEmpty());
    QCOMPARE(spy.count(), 0);
    if (dropped.isEmpty())
        return;
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
    QVERIFY(spy.wait());
    QCOMPARE(spy.first().first().toStringList(), dropped);
}

void tst_sidepanels::addTag()
{
    m_project->setAllTags({QStringLiteral("aster"), QStringLiteral("tulip")});
    TagsBox box(nullptr, m_project, m_filter.get());
    box.show();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    auto *list = box.findChild<TagListWidget *>();
    list->selectTag(QStringLiteral("tulip"));
    box.titleBar()->findChildren<QToolButton *>().at(1)->click();
    QCOMPARE(list->model()->index(3, 0).data().toString(), QStringLiteral("<enter tag name>"));
    auto *editor = list->findChild<QLineEdit *>();
    QVERIFY(editor);
    QTest::keyClicks(editor, QStringLiteral("  rose "));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(m_project->allTags().mid(1, 1), QStringList{QStringLiteral("rose")});
    QCOMPARE(list->model()->rowCount(), 4);
    QCOMPARE(list->selectedTag(), QStringLiteral("tulip"));
    QTRY_VERIFY(list->hasFocus());
}

void tst_sidepanels::refusedTagNames()
{
    m_project->setAllTags({QStringLiteral("rose")});
    TagsBox box(nullptr, m_project, m_filter.get());
    auto *list = box.findChild<TagListWidget *>();
    const MessageBoxes boxes;
    box.onTagAdded(QString());
    QCOMPARE(boxes.informativeText(), QStringLiteral("Empty tag name not allowed!"));
    box.onTagRenamed(QStringLiteral("rose"), QStringLiteral("rose"));
    QCOMPARE(boxes.informativeText(), QStringLiteral("Tag with this name already exists!"));
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
    QTest::keyClick(list, Qt::Key_F2);
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
    MessageBoxes boxes(QMessageBox::No);
    box.removeTag();
    QCOMPARE(boxes.text(), QStringLiteral("This tag is attached to 3 files"));
    QCOMPARE(m_project->allTags().count(), 2);
    boxes.press(QMessageBox::Yes);
    m_project->undoStack()->clear();
    QSignalSpy filtered(m_filter.get(), &FilterModel::filterChanged);
    box.removeTag();
    QVERIFY(file(0)->tags().isEmpty());
    QVERIFY(m_filter->tagFilter().isEmpty());
    QVERIFY(filtered.count() <= 1);
    QCOMPARE(m_project->undoStack()->count(), 1);
    QCOMPARE(m_project->undoStack()->undoText(), QStringLiteral("remove tag"));

    list->selectTag(QStringLiteral("lily"));
    box.removeTag();
    QVERIFY(m_project->allTags().isEmpty());
    QCOMPARE(boxes.count(), 2);
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
    const MessageBoxes yes(QMessageBox::Yes);
    box.removeUnusedTags();
    QCOMPARE(yes.text(), QStringLiteral("Delete %1 unused tags?").arg(count));
    QCOMPARE(yes.informativeText().split(QLatin1Char('\n')).count(), lines);
    QCOMPARE(yes.informativeText().endsWith(QLatin1String("\n...")), count > 10);
    QCOMPARE(m_project->allTags(), QStringList{QStringLiteral("used")});
}

void tst_sidepanels::facts()
{
    PropertiesBox box(nullptr, m_project);
    box.show();
    QCOMPARE(valueTexts(box).first(), QStringLiteral("no file selected"));
    box.setFiles({file(0), file(1), file(2)});
    QCOMPARE(valueTexts(box).mid(0, 5).join(QLatin1Char('|')),
             QStringLiteral("3 files selected|-|-|-|-"));

    box.setFiles({file(0)});
    file(0)->setDesignSize(QSizeF(94.6, 120.2));
    file(0)->setStitchCount(10311);
    file(0)->setName(QStringLiteral("Cushion"));
    QCOMPARE(valueTexts(box).mid(0, 5).join(QLatin1Char('|')),
             QStringLiteral("2.pes|Cushion|95mm x 120mm|10311|0"));
    const QWidget *name = box.findChildren<ElidedLabel *>().at(1);
    QVERIFY(name->isVisible());
    file(0)->setAbsoluteFilePath(QStringLiteral("/a/Cushion"));
    QVERIFY(name->isHidden());

    box.setFiles({file(1)});
    file(0)->setStitchCount(77);
    QVERIFY(!valueTexts(box).contains(QStringLiteral("77")));
}

void tst_sidepanels::notesOfAll()
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

QTEST_MAIN(tst_sidepanels)
#include "tst_sidepanels.moc"
