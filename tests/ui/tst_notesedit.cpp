#include "PanelFixture.h"

#include "ui/panels/PropertyStringMultilineEdit.h"
#include "widgets/controls/GResizingTextEdit.h"

#include <QtTest>

namespace {

/** Counts the announcements of one property. */
class Listener : public Observer
{
public:
    void observedObjectChanged(const Observable *) override { ++count; }

    int count = 0;
};

} // namespace

class tst_notesedit : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void showsCommonValuePlaceholderOrNothing();
    void typingReachesAllFilesInOneStep();
    void typingInOneFileMerges();
    void changeFromElsewhereKeepsCursor();
    void wrongTypeIsRefused();

private:
    void edit(const QList<int> &indexes);
    QTextEdit *field() const { return m_window->findChild<GResizingTextEdit *>(); }

    QSharedPointer<Project> m_project;
    std::unique_ptr<QWidget> m_window;
    PropertyStringMultilineEdit *m_editor = nullptr;
    PropertyDescriptionString m_description{QStringLiteral("notes"), QStringLiteral("Notes"),
                                            QStringLiteral("Notes")};
};

void tst_notesedit::init()
{
    m_window = std::make_unique<QWidget>();
    m_project = projectOfSize(3);
    m_editor = new PropertyStringMultilineEdit(m_window.get(), &m_description, m_project.data());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_notesedit::edit(const QList<int> &indexes)
{
    QList<Property *> properties;
    for (int index : indexes)
        properties += m_project->files().at(index)->notesProp();
    m_editor->setProperties(properties);
}

void tst_notesedit::showsCommonValuePlaceholderOrNothing()
{
    m_project->files().at(0)->setNotes(QStringLiteral("roses"));
    m_project->files().at(1)->setNotes(QStringLiteral("roses"));
    edit({0, 1});
    QCOMPARE(field()->toPlainText(), QStringLiteral("roses"));
    QVERIFY(field()->placeholderText().isEmpty());
    edit({0, 1, 2});
    QVERIFY(field()->toPlainText().isEmpty());
    QCOMPARE(field()->placeholderText(), QStringLiteral("multiple values"));
    edit({});
    QVERIFY(!field()->isEnabled());
    QVERIFY(field()->placeholderText().isEmpty());
    QCOMPARE(m_project->files().at(0)->notes(), QStringLiteral("roses"));
}

void tst_notesedit::typingReachesAllFilesInOneStep()
{
    m_project->files().at(0)->setNotes(QStringLiteral("old"));
    m_project->undoStack()->clear();
    edit({0, 1});
    Listener listener;
    m_project->files().at(0)->notesProp()->registerObserver(&listener);
    field()->setFocus();
    QTest::keyClicks(field(), QStringLiteral("x"));
    QCOMPARE(m_project->files().at(0)->notes(), QStringLiteral("x"));
    QCOMPARE(m_project->files().at(1)->notes(), QStringLiteral("x"));
    QCOMPARE(m_project->undoStack()->count(), 1);
    QCOMPARE(m_project->undoStack()->undoText(), QStringLiteral("'Notes' change (2x)"));
    QCOMPARE(listener.count, 1);
    m_project->undoStack()->undo();
    QCOMPARE(m_project->files().at(0)->notes(), QStringLiteral("old"));
    QVERIFY(m_project->files().at(1)->notes().isEmpty());
}

void tst_notesedit::typingInOneFileMerges()
{
    edit({0});
    QTest::keyClicks(field(), QStringLiteral("for the cushion"));
    QCOMPARE(m_project->files().at(0)->notes(), QStringLiteral("for the cushion"));
    QCOMPARE(m_project->undoStack()->count(), 1);
    QCOMPARE(m_project->undoStack()->undoText(), QStringLiteral("'Notes' change"));
}

void tst_notesedit::changeFromElsewhereKeepsCursor()
{
    edit({0});
    QTest::keyClicks(field(), QStringLiteral("abc"));
    QTextCursor cursor = field()->textCursor();
    cursor.setPosition(1);
    field()->setTextCursor(cursor);
    m_project->files().at(0)->notesProp()->announceChange();
    QCoreApplication::processEvents();
    QCOMPARE(field()->textCursor().position(), 1);
    m_project->files().at(0)->setNotes(QStringLiteral("other"));
    QTRY_COMPARE(field()->toPlainText(), QStringLiteral("other"));
}

void tst_notesedit::wrongTypeIsRefused()
{
    edit({0});
    QVERIFY_EXCEPTION_THROWN(m_editor->setProperties({m_project->files().at(0)->stitchCountProp()}),
                             ErrorTypeConflict);
    QVERIFY(field()->isEnabled());
}

QTEST_MAIN(tst_notesedit)
#include "tst_notesedit.moc"
