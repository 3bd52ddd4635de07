#include "PanelFixture.h"

#include "catalogue/models/FilterModel.h"
#include "support/Rows.h"
#include "ui/panels/TagListWidget.h"
#include "ui/panels/TagsBox.h"

#include <QtTest>
#include <QtWidgets>

namespace {

/** Closes message boxes, and chooses an entry of the next menu, as soon as they are there. */
class Hand : public QObject
{
public:
    explicit Hand(int entry = 0)
    {
        connect(&m_timer, &QTimer::timeout, this, [this, entry] {
            if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
                for (int i = 0; i <= entry; ++i)
                    QTest::keyClick(menu, Qt::Key_Down);
                QTest::keyClick(menu, Qt::Key_Return);
            } else if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                texts.append(box->informativeText());
                box->close();
            }
        });
        m_timer.start(10);
    }

    QStringList texts;

private:
    QTimer m_timer;
};

} // namespace

/** What hands do to tags, and what that does to the choice of a tag. */
class tst_tagsbox : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_project = projectOfSize(2);
        m_project->setAllTags({"aster", "rose", "tulip"});
        m_filter = std::make_unique<FilterModel>(m_project);
        m_box = std::make_unique<TagsBox>(nullptr, m_project, m_filter.get());
        m_list = m_box->findChild<TagListWidget *>();
        m_box->resize(200, 300);
        m_box->show();
        QVERIFY(QTest::qWaitForWindowActive(m_box.get()));
    }

    void cleanup() { m_box.reset(); }

    void refusedRenameKeepsTheChoice_data()
    {
        const Rows<QString, QString> row("name", "told");
        row("another tag's", "rose", "Tag with this name already exists!");
        row("empty", " ", "Empty tag name not allowed!");
    }

    // The next Delete would hit another tag.
    void refusedRenameKeepsTheChoice()
    {
        QFETCH(QString, name);
        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {}, placeOf(3));
        QSignalSpy chosen(m_filter.get(), &IFilterModel::tagFilterChanged);
        QTest::keyClick(m_list, Qt::Key_F2);
        Hand hand;
        type(name);
        QTRY_COMPARE(hand.texts.size(), 1);
        QTEST(hand.texts.first(), "told");
        QTRY_VERIFY(!editor());
        QCOMPARE(m_list->selectedTag(), "tulip");
        QCOMPARE(chosen.count(), 0);
        QTest::keyClick(m_list, Qt::Key_Delete);
        QCOMPARE(m_project->allTags(), QStringList({"aster", "rose"}));
    }

    void menuLeavesTheChoice_data()
    {
        const Rows<int, int, QString, QStringList> row("chosenRow", "entry", "filter", "tags");
        const QString tulip = "tulip";
        const QStringList fewer{"aster", tulip};
        const QStringList renamed{"aster", "peony", tulip};
        row("remove another", 3, 0, tulip, fewer);
        row("rename another", 3, 1, tulip, renamed);
        row("remove with none chosen", 0, 0, {}, fewer);
        row("rename with none chosen", 0, 1, {}, renamed);
        row("remove the chosen", 2, 0, {}, fewer);
        row("rename the chosen", 2, 1, "peony", renamed);
    }

    void menuLeavesTheChoice()
    {
        QFETCH(int, chosenRow);
        QFETCH(int, entry);
        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {}, placeOf(chosenRow));
        const QString before = m_filter->tagFilter();
        const QPoint place = placeOf(2);
        QTest::mouseClick(m_list->viewport(), Qt::RightButton, {}, place);
        QCOMPARE(m_filter->tagFilter(), before);
        Hand hand(entry);
        QContextMenuEvent menu(QContextMenuEvent::Mouse, place,
                               m_list->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(m_list->viewport(), &menu);
        if (entry == 1)
            type("peony");
        QTRY_VERIFY(!editor());
        QTEST(m_project->allTags(), "tags");
        QTEST(m_filter->tagFilter(), "filter");
        QTEST(m_list->selectedTag(), "filter");
        // The next command is about the chosen tag again.
        QCOMPARE(m_list->commandTag(), m_list->selectedTag());
    }

    void newTagLeavesTheListWhereItIs()
    {
        for (int i = 0; i < 60; ++i)
            m_project->addTag(QStringLiteral("tag %1").arg(i));
        QScrollBar *bar = m_list->verticalScrollBar();
        QTRY_VERIFY(bar->maximum() > 0);
        bar->setValue(bar->maximum() / 2);
        const int before = bar->value();
        m_project->addTag("zinnia");
        QCOMPARE(bar->value(), before);
    }

private:
    QLineEdit *editor() const { return m_list->findChild<QLineEdit *>(); }
    QPoint placeOf(int row) const
    {
        return m_list->visualRect(m_list->model()->index(row, 0)).center();
    }

    void type(const QString &text)
    {
        editor()->selectAll();
        QTest::keyClicks(editor(), text);
        QTest::keyClick(editor(), Qt::Key_Return);
    }

    QSharedPointer<Project> m_project;
    std::unique_ptr<FilterModel> m_filter;
    std::unique_ptr<TagsBox> m_box;
    TagListWidget *m_list = nullptr;
};

QTEST_MAIN(tst_tagsbox)
#include "tst_tagsbox.moc"
