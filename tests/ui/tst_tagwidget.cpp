#include "PanelFixture.h"

#include "properties/changes/ChangeManager.h"
#include "support/Rows.h"
#include "ui/panels/ElidedLabel.h"
#include "ui/panels/FlowLayout.h"
#include "ui/panels/TagLabel.h"
#include "ui/panels/TagWidget.h"
#include "widgets/style/WidgetStyles.h"

#include <QtTest>
#include <QtWidgets>

class tst_tagwidget : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_widget.reset();
        m_project = projectOfSize(3);
        m_widget = std::make_unique<TagWidget>(m_project, nullptr);
        m_widget->setAllTagsList(m_project->allTagsProp());
        m_widget->resize(260, 200);
        m_widget->show();
        QVERIFY(QTest::qWaitForWindowActive(m_widget.get()));
    }

    void chipsTellAllFromSome()
    {
        file(0)->setTags({"a", "b"});
        file(1)->setTags({"b"});
        select(2);
        QCOMPARE(texts(), QStringList({"a", "b"}));
        QCOMPARE(labels().at(0)->multiSelect(), TagLabel::SetOnSome);
        QCOMPARE(labels().at(1)->multiSelect(), TagLabel::SetOnAll);
        QVERIFY(labels().at(0)->styleSheet().startsWith(WidgetStyles::TagLabelSomeSelected()));
        QVERIFY(labels().at(1)->styleSheet().startsWith(WidgetStyles::TagLabelAllSelected()));
        QCOMPARE(labels().at(0)->toolTip(),
                 "The tag <b>a</b> is set on some of the selected files.");
    }

    void addingIsOneStep()
    {
        const QString rose = "rose";
        file(0)->setTags({rose});
        m_project->setAllTags({"Rose", "roses"});
        m_project->undoStack()->clear();
        select(3);
        QSignalSpy visible(m_widget.get(), &TagWidget::ensureVisible);
        combo()->setFocus();
        QTest::keyClicks(combo()->lineEdit(), " rose ");
        QTest::keyClick(combo()->lineEdit(), Qt::Key_Return);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(file(i)->tags(), QStringList{rose});
        QVERIFY(m_project->allTags().contains(rose));
        QCOMPARE(combo()->count(), 3);
        QCOMPARE(m_project->undoStack()->count(), 1);
        QCOMPARE(m_project->undoStack()->undoText(), "add tag 'rose'");
        QCOMPARE(texts(), QStringList{rose});
        QCOMPARE(labels().first()->multiSelect(), TagLabel::SetOnAll);
        QVERIFY(combo()->currentText().isEmpty());
        QVERIFY(combo()->hasFocus() || combo()->lineEdit()->hasFocus());
        QCOMPARE(visible.count(), 1);
    }

    void blanksAreNoTag()
    {
        select(1);
        QTest::keyClicks(combo()->lineEdit(), "   ");
        QTest::keyClick(combo()->lineEdit(), Qt::Key_Return);
        QVERIFY(file(0)->tags().isEmpty());
        QCOMPARE(combo()->count(), 0);
        QCOMPARE(m_project->undoStack()->count(), 0);
    }

    void addingByList()
    {
        m_project->setAllTags({"rose", "tulip"});
        QVERIFY(!combo()->isEnabled());
        select(1);
        QVERIFY(!addButton()->isEnabled());
        combo()->setFocus();
        QTest::keyClick(combo()->lineEdit(), Qt::Key_Down);
        QVERIFY(file(0)->tags().isEmpty());
        combo()->hidePopup();
        combo()->setEditText("tulip");
        QTest::mouseClick(addButton(), Qt::LeftButton);
        QCOMPARE(file(0)->tags(), QStringList{"tulip"});
        QVERIFY(!addButton()->isEnabled());
    }

    void removingIsOneStep()
    {
        for (int i = 0; i < 2; ++i)
            file(i)->setTags({"rose", "tulip"});
        m_project->setAllTags({"rose", "tulip"});
        m_project->undoStack()->clear();
        select(3);
        auto *button = labels().first()->findChild<QToolButton *>();
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Space);
        QCOMPARE(file(0)->tags(), QStringList{"tulip"});
        QCOMPARE(file(1)->tags(), QStringList{"tulip"});
        QCOMPARE(m_project->undoStack()->count(), 1);
        QCOMPARE(m_project->undoStack()->undoText(), "remove tag 'rose'");
        QCOMPARE(m_project->allTags().count(), 2);
        QCOMPARE(texts(), QStringList{"tulip"});
    }

    void manyChangesAreShownOnce()
    {
        select(3);
        m_project->undoStack()->beginMacroAndDeferAllAnnouncements("many");
        for (int i = 0; i < 3; ++i)
            file(i)->setTags({"late"});
        QVERIFY(texts().isEmpty());
        m_project->undoStack()->endMacroAndExecuteAnnouncements();
        QCOMPARE(texts(), QStringList{"late"});
        QCOMPARE(labels().first()->multiSelect(), TagLabel::SetOnAll);
    }

    void showsMoreTagsOnDemand()
    {
        auto *more = m_widget->findChild<QToolButton *>("moreTags");
        QStringList tags;
        for (int i = 0; i < 60; ++i)
            tags += QStringLiteral("tag %1").arg(i, 2, 10, QLatin1Char('0'));
        file(0)->setTags(tags);
        select(1);
        QCOMPARE(texts(), tags.mid(0, 24));
        QCOMPARE(more->text(), "+ 36 more");
        // By key: whoever uses no mouse goes on where the button was.
        more->setFocus(Qt::TabFocusReason);
        QTest::keyClick(more, Qt::Key_Space);
        QCOMPARE(texts(), tags.mid(0, 48));
        QCOMPARE(more->text(), "+ 12 more");
        QTest::keyClick(more, Qt::Key_Space);
        QCOMPARE(texts(), tags);
        QVERIFY(!more->isVisible());
        QVERIFY(combo()->hasFocus());
        // What nobody sees is removed and added all the same, and another selection starts afresh.
        file(1)->setTags(tags);
        select(2);
        QCOMPARE(texts().size(), 24);
        m_widget->addTag("zebra");
        QCOMPARE(more->text(), "+ 37 more");
        QVERIFY(file(1)->tags().contains("zebra"));
    }

    void followsVeryManyFiles()
    {
        constexpr int Many = 2500;
        m_widget.reset();
        m_project = projectOfSize(Many);
        m_widget = std::make_unique<TagWidget>(m_project, nullptr);
        select(Many);
        file(Many - 1)->setTags({"late"});
        QCOMPARE(texts(), QStringList("late"));
        QCOMPARE(labels().first()->multiSelect(), TagLabel::SetOnSome);
        m_project->undoStack()->undo();
        QVERIFY(texts().isEmpty());
        select(1);
        file(Many - 1)->setTags({"elsewhere"});
        QVERIFY(texts().isEmpty());
        QVERIFY(!ChangeManager::instance().hasObserversOfAll());
    }

    void hostileTags_data()
    {
        const Rows<QString> row("tag");
        row("long", QString(500, QLatin1Char('W')));
        row("markup", "<img src=x> & \"q\"");
        row("right to left", "\u05e4\u05e8\u05d7 \u0648\u0631\u062f\u0629");
        row("emoji", "\U0001F339\U0001F9F5");
        row("line break", "a\nb");
    }

    void hostileTags()
    {
        QFETCH(QString, tag);
        const int widthBefore = m_widget->minimumSizeHint().width();
        file(0)->setTags({tag});
        select(1);
        TagLabel *label = labels().first();
        QVERIFY(!m_widget->grab().isNull());
        QVERIFY(label->geometry().right() <= m_widget->width());
        QCOMPARE(m_widget->minimumSizeHint().width(), widthBefore);
        QVERIFY(!label->toolTip().contains(QLatin1String("<img")));
        label->findChild<QToolButton *>()->click();
        QVERIFY(file(0)->tags().isEmpty());
    }

    void elidedLabel()
    {
        ElidedLabel label("a tag that needs some room", nullptr);
        QSignalSpy changed(&label, &ElidedLabel::elisionChanged);
        label.resize(40, 20);
        label.grab();
        QVERIFY(label.isElided());
        QVERIFY(!label.toolTip().isEmpty());
        label.resize(label.sizeHint());
        label.grab();
        QVERIFY(!label.isElided());
        QVERIFY(label.toolTip().isEmpty());
        QCOMPARE(changed.count(), 2);
        QVERIFY(label.minimumSizeHint().width() < label.sizeHint().width());
    }

    void wrapText()
    {
        const QString words = QStringLiteral("0123456789 ").repeated(20);
        const QStringList lines = ElidedLabel::wrapText(words, 100).split(QLatin1Char('\n'));
        QVERIFY(lines.count() > 1);
        for (const QString &line : lines)
            QVERIFY(line.length() <= 110);
        QCOMPARE(lines.join(QLatin1Char(' ')), words);
    }

    void flowLayoutClipsToTheRow()
    {
        QWidget window;
        auto *layout = new FlowLayout(&window, 0, 4, 6);
        const QList<int> widths{60, 60, 300};
        QList<QWidget *> boxes;
        for (int width : widths) {
            auto *box = new ElidedLabel(QString(), &window);
            box->setMinimumHeight(10);
            box->setFixedHeight(10);
            box->setMinimumWidth(qMin(width, 60));
            if (width > 60)
                box->setText(QString(100, QLatin1Char('W')));
            layout->addWidget(box);
            boxes += box;
        }
        layout->setGeometry(QRect(0, 0, 130, 100));
        QCOMPARE(boxes.at(1)->pos(), QPoint(64, 0));
        QCOMPARE(boxes.at(2)->pos(), QPoint(0, 16));
        QCOMPARE(boxes.at(2)->width(), 130);
        QCOMPARE(layout->heightForWidth(130), 26);
        QCOMPARE(layout->heightForWidth(100), 42);
    }

private:
    void select(int count)
    {
        QList<PropertyStringList *> lists;
        for (int i = 0; i < count; ++i)
            lists += file(i)->tagsProp();
        m_widget->setTagLists(lists);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QList<TagLabel *> labels() const
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QList<TagLabel *> found = m_widget->findChildren<TagLabel *>();
        std::sort(found.begin(), found.end(),
                  [](const TagLabel *a, const TagLabel *b) { return a->text() < b->text(); });
        return found;
    }

    QStringList texts() const
    {
        QStringList result;
        for (const TagLabel *label : labels())
            result += label->text();
        return result;
    }

    QSharedPointer<IFile> file(int index) const { return m_project->files().at(index); }
    QComboBox *combo() const { return m_widget->findChild<QComboBox *>(); }
    QPushButton *addButton() const { return m_widget->findChild<QPushButton *>(); }

    QSharedPointer<Project> m_project;
    std::unique_ptr<TagWidget> m_widget;
};

QTEST_MAIN(tst_tagwidget)
#include "tst_tagwidget.moc"
