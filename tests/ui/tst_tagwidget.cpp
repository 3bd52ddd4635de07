#include "PanelFixture.h"

#include "properties/changes/ChangeManager.h"
#include "ui/panels/ElidedLabel.h"
#include "ui/panels/FlowLayout.h"
#include "ui/panels/TagLabel.h"
#include "ui/panels/TagWidget.h"
#include "widgets/style/WidgetStyles.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>

class tst_tagwidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void chipsTellAllFromSome();
    void addingIsOneStep();
    void blanksAreNoTag();
    void addingByList();
    void removingIsOneStep();
    void manyChangesAreShownOnce();
    void showsMoreTagsOnDemand();
    void followsVeryManyFiles();
    void hostileTags_data();
    void hostileTags();
    void elidedLabel();
    void wrapText();
    void flowLayoutClipsToTheRow();

private:
    void select(int count);
    QList<TagLabel *> labels() const;
    QStringList texts() const;
    QSharedPointer<IFile> file(int index) const { return m_project->files().at(index); }
    QComboBox *combo() const { return m_widget->findChild<QComboBox *>(); }
    QPushButton *addButton() const { return m_widget->findChild<QPushButton *>(); }

    QSharedPointer<Project> m_project;
    std::unique_ptr<TagWidget> m_widget;
};

void tst_tagwidget::init()
{
    m_widget.reset();
    m_project = projectOfSize(3);
    m_widget = std::make_unique<TagWidget>(m_project, nullptr);
    m_widget->setAllTagsList(m_project->allTagsProp());
    m_widget->resize(260, 200);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowActive(m_widget.get()));
}

void tst_tagwidget::select(int count)
{
    QList<PropertyStringList *> lists;
    for (int i = 0; i < count; ++i)
        lists += file(i)->tagsProp();
    m_widget->setTagLists(lists);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QList<TagLabel *> tst_tagwidget::labels() const
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QList<TagLabel *> found = m_widget->findChildren<TagLabel *>();
    std::sort(found.begin(), found.end(),
              [](const TagLabel *a, const TagLabel *b) { return a->text() < b->text(); });
    return found;
}

QStringList tst_tagwidget::texts() const
{
    QStringList result;
    for (const TagLabel *label : labels())
        result += label->text();
    return result;
}

void tst_tagwidget::chipsTellAllFromSome()
{
    file(0)->setTags({QStringLiteral("a"), QStringLiteral("b")});
    file(1)->setTags({QStringLiteral("b")});
    select(2);
    QCOMPARE(texts(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(labels().at(0)->multiSelect(), TagLabel::SetOnSome);
    QCOMPARE(labels().at(1)->multiSelect(), TagLabel::SetOnAll);
    QVERIFY(labels().at(0)->styleSheet().startsWith(WidgetStyles::TagLabelSomeSelected()));
    QVERIFY(labels().at(1)->styleSheet().startsWith(WidgetStyles::TagLabelAllSelected()));
    QCOMPARE(labels().at(0)->toolTip(),
             QStringLiteral("The tag <b>a</b> is set on some of the selected files."));
}

void tst_tagwidget::addingIsOneStep()
{
    const QString rose = QStringLiteral("rose");
    file(0)->setTags({rose});
    m_project->setAllTags({QStringLiteral("Rose"), QStringLiteral("roses")});
    m_project->undoStack()->clear();
    select(3);
    QSignalSpy visible(m_widget.get(), &TagWidget::ensureVisible);
    combo()->setFocus();
    QTest::keyClicks(combo()->lineEdit(), QStringLiteral(" rose "));
    QTest::keyClick(combo()->lineEdit(), Qt::Key_Return);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(file(i)->tags(), QStringList{rose});
    QVERIFY(m_project->allTags().contains(rose));
    QCOMPARE(combo()->count(), 3);
    QCOMPARE(m_project->undoStack()->count(), 1);
    QCOMPARE(m_project->undoStack()->undoText(), QStringLiteral("add tag 'rose'"));
    QCOMPARE(texts(), QStringList{rose});
    QCOMPARE(labels().first()->multiSelect(), TagLabel::SetOnAll);
    QVERIFY(combo()->currentText().isEmpty());
    QVERIFY(combo()->hasFocus() || combo()->lineEdit()->hasFocus());
    QCOMPARE(visible.count(), 1);
}

void tst_tagwidget::blanksAreNoTag()
{
    select(1);
    QTest::keyClicks(combo()->lineEdit(), QStringLiteral("   "));
    QTest::keyClick(combo()->lineEdit(), Qt::Key_Return);
    QVERIFY(file(0)->tags().isEmpty());
    QCOMPARE(combo()->count(), 0);
    QCOMPARE(m_project->undoStack()->count(), 0);
}

void tst_tagwidget::addingByList()
{
    m_project->setAllTags({QStringLiteral("rose"), QStringLiteral("tulip")});
    QVERIFY(!combo()->isEnabled());
    select(1);
    QVERIFY(!addButton()->isEnabled());
    combo()->setFocus();
    QTest::keyClick(combo()->lineEdit(), Qt::Key_Down);
    QVERIFY(file(0)->tags().isEmpty());
    combo()->hidePopup();
    combo()->setEditText(QStringLiteral("tulip"));
    QTest::mouseClick(addButton(), Qt::LeftButton);
    QCOMPARE(file(0)->tags(), QStringList{QStringLiteral("tulip")});
    QVERIFY(!addButton()->isEnabled());
}

void tst_tagwidget::removingIsOneStep()
{
    for (int i = 0; i < 2; ++i)
        file(i)->setTags({QStringLiteral("rose"), QStringLiteral("tulip")});
    m_project->setAllTags({QStringLiteral("rose"), QStringLiteral("tulip")});
    m_project->undoStack()->clear();
    select(3);
    auto *button = labels().first()->findChild<QToolButton *>();
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    QCOMPARE(file(0)->tags(), QStringList{QStringLiteral("tulip")});
    QCOMPARE(file(1)->tags(), QStringList{QStringLiteral("tulip")});
    QCOMPARE(m_project->undoStack()->count(), 1);
    QCOMPARE(m_project->undoStack()->undoText(), QStringLiteral("remove tag 'rose'"));
    QCOMPARE(m_project->allTags().count(), 2);
    QCOMPARE(texts(), QStringList{QStringLiteral("tulip")});
}

void tst_tagwidget::manyChangesAreShownOnce()
{
    select(3);
    m_project->undoStack()->beginMacroAndDeferAllAnnouncements(QStringLiteral("many"));
    for (int i = 0; i < 3; ++i)
        file(i)->setTags({QStringLiteral("late")});
    QVERIFY(texts().isEmpty());
    m_project->undoStack()->endMacroAndExecuteAnnouncements();
    QCOMPARE(texts(), QStringList{QStringLiteral("late")});
    QCOMPARE(labels().first()->multiSelect(), TagLabel::SetOnAll);
}

void tst_tagwidget::showsMoreTagsOnDemand()
{
    auto *more = m_widget->findChild<QToolButton *>(QStringLiteral("moreTags"));
    QStringList tags;
    for (int i = 0; i < 60; ++i)
        tags += QStringLiteral("tag %1").arg(i, 2, 10, QLatin1Char('0'));
    file(0)->setTags(tags);
    select(1);
    QCOMPARE(texts(), tags.mid(0, 24));
    QCOMPARE(more->text(), QStringLiteral("+ 36 more"));
    // By key: whoever uses no mouse goes on where the button was.
    more->setFocus(Qt::TabFocusReason);
    QTest::keyClick(more, Qt::Key_Space);
    QCOMPARE(texts(), tags.mid(0, 48));
    QCOMPARE(more->text(), QStringLiteral("+ 12 more"));
    QTest::keyClick(more, Qt::Key_Space);
    QCOMPARE(texts(), tags);
    QVERIFY(!more->isVisible());
    QVERIFY(combo()->hasFocus());
    // What nobody sees is removed and added all the same, and another selection starts afresh.
    file(1)->setTags(tags);
    select(2);
    QCOMPARE(texts().size(), 24);
    m_widget->addTag(QStringLiteral("zebra"));
    QCOMPARE(more->text(), QStringLiteral("+ 37 more"));
    QVERIFY(file(1)->tags().contains(QStringLiteral("zebra")));
}

void tst_tagwidget::followsVeryManyFiles()
{
    constexpr int Many = 2500;
    m_widget.reset();
    m_project = projectOfSize(Many);
    m_widget = std::make_unique<TagWidget>(m_project, nullptr);
    select(Many);
    file(Many - 1)->setTags({QStringLiteral("late")});
    QCOMPARE(texts(), QStringList(QStringLiteral("late")));
    QCOMPARE(labels().first()->multiSelect(), TagLabel::SetOnSome);
    m_project->undoStack()->undo();
    QVERIFY(texts().isEmpty());
    select(1);
    file(Many - 1)->setTags({QStringLiteral("elsewhere")});
    QVERIFY(texts().isEmpty());
    QVERIFY(!ChangeManager::instance().hasObserversOfAll());
}

void tst_tagwidget::hostileTags_data()
{
    QTest::addColumn<QString>("tag");
    QTest::newRow("long") << QString(500, QLatin1Char('W'));
    QTest::newRow("markup") << QStringLiteral("<img src=x> & \"q\"");
    QTest::newRow("right to left") << QStringLiteral("\u05e4\u05e8\u05d7 \u0648\u0631\u062f\u0629");
    QTest::newRow("emoji") << QStringLiteral("\U0001F339\U0001F9F5");
    QTest::newRow("line break") << QStringLiteral("a\nb");
}

void tst_tagwidget::hostileTags()
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

void tst_tagwidget::elidedLabel()
{
    ElidedLabel label(QStringLiteral("a tag that needs some room"), nullptr);
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

void tst_tagwidget::wrapText()
{
    const QString words = QStringLiteral("0123456789 ").repeated(20);
    const QStringList lines = ElidedLabel::wrapText(words, 100).split(QLatin1Char('\n'));
    QVERIFY(lines.count() > 1);
    for (const QString &line : lines)
        QVERIFY(line.length() <= 110);
    QCOMPARE(lines.join(QLatin1Char(' ')), words);
}

void tst_tagwidget::flowLayoutClipsToTheRow()
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

QTEST_MAIN(tst_tagwidget)
#include "tst_tagwidget.moc"
