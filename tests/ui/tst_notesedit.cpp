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
    void undoGivesEachFileItsOwnText_data();
    void undoGivesEachFileItsOwnText();
    void deletedTextIsNotUndone();
    void otherFilesAreNotUndone();
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

void tst_notesedit::undoGivesEachFileItsOwnText_data()
{
    QTest::addColumn<bool>("turns");
    QTest::newRow("at once") << false;
    QTest::newRow("with the event loop turning") << true;
}

void tst_notesedit::undoGivesEachFileItsOwnText()
{
    QFETCH(bool, turns);
    const QStringList own{QStringLiteral("roses"), QStringLiteral("leaves"), QString()};
    const auto notes = [this] {
        QStringList texts;
        for (const auto &file : m_project->files())
            texts.append(file->notes());
        return texts;
    };
    const auto turn = [turns] {
        if (turns)
            QCoreApplication::processEvents();
    };
    for (int i = 0; i < own.size(); ++i)
        m_project->files().at(i)->setNotes(own.at(i));
    edit({0, 1, 2});
    const QStringList typed{QStringLiteral("abc"), QStringLiteral("abc"), QStringLiteral("abc")};
    // Back and forth, as often as one likes.
    QTest::keyClicks(field(), QStringLiteral("abc"));
    for (int i = 0; i < 3; ++i) {
        turn();
        QCOMPARE(notes(), typed);
        QTest::keySequence(field(), QKeySequence::Undo);
        QCOMPARE(notes(), own);
        QTRY_COMPARE(field()->placeholderText(), QStringLiteral("multiple values"));
        turn();
        QTest::keySequence(field(), QKeySequence::Redo);
    }
    QCOMPARE(notes(), typed);
    QVERIFY(!m_project->undoStack()->isClean());
}

void tst_notesedit::deletedTextIsNotUndone()
{
    m_project->files().at(0)->setNotes(QStringLiteral("roses"));
    edit({0, 1});
    QTest::keyClicks(field(), QStringLiteral("a"));
    QTest::keyClick(field(), Qt::Key_Backspace);
    QVERIFY(m_project->files().at(0)->notes().isEmpty());
}

void tst_notesedit::otherFilesAreNotUndone()
{
    m_project->files().at(1)->setNotes(QStringLiteral("abc"));
    edit({0});
    QTest::keyClicks(field(), QStringLiteral("abc"));
    // The text is the same, and stays in the field as it is.
    edit({1});
    QTest::keySequence(field(), QKeySequence::Undo);
    QCOMPARE(m_project->files().at(1)->notes(), QStringLiteral("abc"));
    QCOMPARE(m_project->files().at(0)->notes(), QStringLiteral("abc"));
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
