#include "PanelFixture.h"

#include "base/GlobalSettings.h"
#include "catalogue/models/FilterModel.h"
#include "catalogue/records/Thread.h"
#include "support/MessageBoxes.h"
#include "support/Rows.h"
#include "ui/panels/ColorsBox.h"
#include "ui/panels/DirectoriesBox.h"
#include "ui/panels/ElidedLabel.h"
#include "ui/panels/PropertiesBox.h"
#include "ui/panels/TagListWidget.h"
#include "ui/panels/TagsBox.h"
#include "widgets/controls/GExpandingTitle.h"
#include "widgets/controls/GTreeView.h"

#include <functional>
#include <QtTest>
#include <QtWidgets>

class tst_sidepanels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        GSettings::setIniFile(m_dir.filePath("settings.ini"));
        GlobalSettings().setImperialUnits(false);
    }

    void init()
    {
        m_project = projectWithFiles({"/a/sub/deep/1.pes", "/a/2.pes", "/b/3.pes"});
        m_project->setSmartFolders({"/a", "/b"}, QString());
        m_filter = std::make_unique<FilterModel>(m_project);
    }

    void cleanup()
    {
        m_filter.reset();
        m_project.reset();
    }

    void folderChoiceFilters()
    {
        DirectoriesBox box(nullptr, m_project, m_filter.get());
        box.show();
        auto *tree = box.findChild<GTreeView *>();
        const auto chosen = [tree] {
            const QModelIndexList rows = tree->selectionModel()->selectedRows();
            return rows.isEmpty() ? QString() : rows.first().data().toString();
        };
        tree->setCurrentIndex(tree->model()->index(1, 0));
        QCOMPARE(m_filter->directoryFilter(), "/b");
        m_project->setFiles(m_project->files());
        QVERIFY(tree->isExpanded(tree->model()->index(0, 0)));
        QCOMPARE(chosen(), "b");
        QCOMPARE(m_filter->directoryFilter(), "/b");

        m_filter->setDirectory("/a/sub/deep");
        QCOMPARE(chosen(), "deep");
        m_filter->setDirectory(QString());
        QCOMPARE(chosen(), "deep");
        m_filter->setDirectory("/b");
        QTest::keyClick(tree, Qt::Key_Escape);
        QVERIFY(m_filter->directoryFilter().isEmpty());
    }

    void folderDrop_data()
    {
        const Rows<QStringList, bool, QStringList> row("names", "modal", "dropped");
        const QString folder = "a \"b\" & c\nd";
        const QString file = "settings.ini";
        row("folder beside a file", {file, folder}, false, {folder});
        row("file", {file}, false, {});
        row("before a dialog", {folder}, true, {});
    }

    void folderDrop()
    {
        QFETCH(QStringList, names);
        QFETCH(bool, modal);
        QFETCH(QStringList, dropped);
        QList<QUrl> urls{QUrl("https://example.org/")};
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
        QDragEnterEvent enter(QPoint(50, 50), Qt::MoveAction | Qt::CopyAction, &data,
                              Qt::LeftButton, Qt::NoModifier);
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

    void addTag()
    {
        m_project->setAllTags({"aster", "tulip"});
        TagsBox box(nullptr, m_project, m_filter.get());
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        auto *list = box.findChild<TagListWidget *>();
        list->selectTag("tulip");
        box.titleBar()->findChildren<QToolButton *>().at(1)->click();
        QCOMPARE(list->model()->index(3, 0).data().toString(), "<enter tag name>");
        auto *editor = list->findChild<QLineEdit *>();
        QVERIFY(editor);
        QTest::keyClicks(editor, "  rose ");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(m_project->allTags().mid(1, 1), QStringList{"rose"});
        QCOMPARE(list->model()->rowCount(), 4);
        QCOMPARE(list->selectedTag(), "tulip");
        QTRY_VERIFY(list->hasFocus());
    }

    void removeTagAsks()
    {
        for (int i = 0; i < 3; ++i)
            file(i)->setTags({"rose"});
        m_project->setAllTags({"lily", "rose"});
        TagsBox box(nullptr, m_project, m_filter.get());
        auto *list = box.findChild<TagListWidget *>();
        list->selectTag("rose");
        MessageBoxes boxes(QMessageBox::No);
        box.removeTag();
        QCOMPARE(boxes.text(), "This tag is attached to 3 files");
        QCOMPARE(m_project->allTags().count(), 2);
        boxes.press(QMessageBox::Yes);
        m_project->undoStack()->clear();
        QSignalSpy filtered(m_filter.get(), &FilterModel::filterChanged);
        box.removeTag();
        QVERIFY(file(0)->tags().isEmpty());
        QVERIFY(m_filter->tagFilter().isEmpty());
        QVERIFY(filtered.count() <= 1);
        QCOMPARE(m_project->undoStack()->count(), 1);
        QCOMPARE(m_project->undoStack()->undoText(), "remove tag");

        list->selectTag("lily");
        box.removeTag();
        QVERIFY(m_project->allTags().isEmpty());
        QCOMPARE(boxes.count(), 2);
    }

    void unusedTags_data()
    {
        const Rows<int, int> row("count", "lines");
        row("ten are listed", 10, 10);
        row("eleven are cut", 11, 10);
    }

    void unusedTags()
    {
        QFETCH(int, count);
        QStringList tags;
        for (int i = 0; i < count; ++i)
            tags += QStringLiteral("tag %1").arg(i);
        file(0)->setTags({"used"});
        m_project->setAllTags(tags + QStringList("used"));
        TagsBox box(nullptr, m_project, m_filter.get());
        const MessageBoxes yes(QMessageBox::Yes);
        box.removeUnusedTags();
        QCOMPARE(yes.text(), QStringLiteral("Delete %1 unused tags?").arg(count));
        QTEST(yes.informativeText().split(QLatin1Char('\n')).count(), "lines");
        QCOMPARE(yes.informativeText().endsWith(QLatin1String("\n...")), count > 10);
        QCOMPARE(m_project->allTags(), QStringList{"used"});
    }

    void facts()
    {
        PropertiesBox box(nullptr, m_project);
        box.show();
        QCOMPARE(valueTexts(box).first(), "no file selected");
        box.setFiles({file(0), file(1), file(2)});
        QCOMPARE(valueTexts(box).mid(0, 5).join(QLatin1Char('|')), "3 files selected|-|-|-|-");

        box.setFiles({file(0)});
        file(0)->setDesignSize(QSizeF(94.6, 120.2));
        file(0)->setStitchCount(10311);
        file(0)->setName("Cushion");
        QCOMPARE(valueTexts(box).mid(0, 5).join(QLatin1Char('|')),
                 "2.pes|Cushion|95mm x 120mm|10311|0");
        const QWidget *name = box.findChildren<ElidedLabel *>().at(1);
        QVERIFY(name->isVisible());
        file(0)->setAbsoluteFilePath("/a/Cushion");
        QVERIFY(name->isHidden());

        box.setFiles({file(1)});
        file(0)->setStitchCount(77);
        QVERIFY(!valueTexts(box).contains("77"));
    }

    void recordsOutliveTheirEditors()
    {
        struct Record : File
        {
            Record(Project *project, const std::function<void()> &atEnd)
                : File(project), m_atEnd(atEnd)
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

    void colors()
    {
        ColorsBox box(nullptr);
        auto *tree = box.findChild<QTreeWidget *>();
        QList<QSharedPointer<IThread>> threads;
        for (int i = 0; i < 20; ++i) {
            auto thread = QSharedPointer<Thread>::create(m_project.data());
            thread->setColor(Qt::red);
            threads += thread;
        }
        threads.first()->setColorName("Carmine");
        box.setFiles({file(0)});
        file(0)->setThreads(threads);
        QCOMPARE(tree->topLevelItemCount(), 20);
        QCOMPARE(tree->topLevelItem(0)->text(1), "Carmine");
        QCOMPARE(tree->topLevelItem(0)->text(2), "undefined");
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

private:
    QTemporaryDir m_dir;
    QSharedPointer<Project> m_project;
    std::unique_ptr<FilterModel> m_filter;
    QSharedPointer<IFile> file(int index) const { return m_project->files().at(index); }

    static QStringList valueTexts(const QWidget &panel)
    {
        QStringList texts;
        const auto labels = panel.findChildren<ElidedLabel *>();
        for (const ElidedLabel *label : labels)
            texts += label->text();
        return texts;
    }
};

QTEST_MAIN(tst_sidepanels)
#include "tst_sidepanels.moc"
