#include "ui/panels/TagListWidget.h"

#include <QtTest>
#include <QtWidgets>

class tst_taglistwidget : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_list = std::make_unique<TagListWidget>();
        m_list->setTags({"rose", "tulip"});
        m_list->resize(200, 200);
        m_list->show();
        QVERIFY(QTest::qWaitForWindowActive(m_list.get()));
    }

    void selectionIsKept()
    {
        QCOMPARE(rows().first(), "- show all files -");
        QSignalSpy selected(m_list.get(), &TagListWidget::selectedTagChanged);
        QTest::keyClick(m_list.get(), Qt::Key_Down);
        QCOMPARE(selected.takeLast().first().toString(), "rose");
        m_list->setTags({"aster", "rose"});
        QCOMPARE(m_list->selectedTag(), "rose");
        m_list->setTags({"aster"});
        QVERIFY(m_list->selectedTag().isEmpty());
        QCOMPARE(selected.last().first().toString(), QString());
    }

    void addingWithoutTypingLeavesNothing()
    {
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
            m_list->startAddingTag();
            QTest::keyClick(editor(), key);
            QTRY_COMPARE(rows().count(), 3);
            QTRY_VERIFY(!editor());
        }
    }

    void keysActOnTagsOnly()
    {
        QSignalSpy removed(m_list.get(), &TagListWidget::removeTag);
        QTest::keyClick(m_list.get(), Qt::Key_F2);
        QTest::keyClick(m_list.get(), Qt::Key_Delete);
        QVERIFY(!editor());
        QCOMPARE(removed.count(), 0);
        m_list->selectTag("rose");
        QTest::keyClick(m_list.get(), Qt::Key_Delete);
        QCOMPARE(removed.count(), 1);
    }

    void highlightFades()
    {
        QSignalSpy added(m_list.get(), &TagListWidget::tagAdded);
        m_list->highlightTag("rose");
        const QModelIndex rose = m_list->model()->index(1, 0);
        QCOMPARE(rose.data(Qt::BackgroundRole).value<QBrush>().color(),
                 m_list->palette().color(QPalette::Highlight));
        QTRY_VERIFY_WITH_TIMEOUT(!rose.data(Qt::BackgroundRole).isValid(), 5000);
        QCOMPARE(added.count(), 0);
        QCOMPARE(rows().at(1), "rose");
    }

    void listRebuiltWhileEditing()
    {
        connect(m_list.get(), &TagListWidget::tagAdded, this, [this] {
            m_list->setTags({"lily", "rose"});
        });
        m_list->startAddingTag();
        QTest::keyClicks(editor(), "lily");
        QTest::keyClick(editor(), Qt::Key_Return);
        QTRY_COMPARE(rows().mid(1), QStringList({"lily", "rose"}));
        QVERIFY(m_list->model()->index(1, 0).data(Qt::BackgroundRole).isValid());
        m_list->startAddingTag();
        m_list->setTags({"rose"});
        QTRY_VERIFY(!editor());
        QCOMPARE(rows().count(), 2);
    }

    void longTagIsElided()
    {
        m_list->setTags({"<b>x</b>" + QString(500, QLatin1Char('W'))});
        const QModelIndex index = m_list->model()->index(1, 0);
        QVERIFY(m_list->visualRect(index).width() <= m_list->viewport()->width());
        const QPoint place = m_list->visualRect(index).center();
        QHelpEvent help(QEvent::ToolTip, place, m_list->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(m_list->viewport(), &help);
        QVERIFY(QToolTip::text().contains(QLatin1String("&lt;b&gt;")));
    }

private:
    QLineEdit *editor() const { return m_list->findChild<QLineEdit *>(); }

    QStringList rows() const
    {
        QStringList texts;
        for (int row = 0; row < m_list->model()->rowCount(); ++row)
            texts += m_list->model()->index(row, 0).data().toString();
        return texts;
    }

    std::unique_ptr<TagListWidget> m_list;
};

QTEST_MAIN(tst_taglistwidget)
#include "tst_taglistwidget.moc"
