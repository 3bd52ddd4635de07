#include "PanelFixture.h"

#include "support/Rows.h"
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
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_project = projectOfSize(3);
        m_editor =
            new PropertyStringMultilineEdit(m_window.get(), &m_description, m_project.data());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void showsCommonValuePlaceholderOrNothing()
    {
        m_project->files().at(0)->setNotes("roses");
        m_project->files().at(1)->setNotes("roses");
        edit({0, 1});
        QCOMPARE(field()->toPlainText(), "roses");
        QVERIFY(field()->placeholderText().isEmpty());
        edit({0, 1, 2});
        QVERIFY(field()->toPlainText().isEmpty());
        QCOMPARE(field()->placeholderText(), "multiple values");
        edit({});
        QVERIFY(!field()->isEnabled());
        QVERIFY(field()->placeholderText().isEmpty());
        QCOMPARE(m_project->files().at(0)->notes(), "roses");
    }

    void typingReachesAllFilesInOneStep()
    {
        m_project->files().at(0)->setNotes("old");
        m_project->undoStack()->clear();
        edit({0, 1});
        Listener listener;
        m_project->files().at(0)->notesProp()->registerObserver(&listener);
        field()->setFocus();
        QTest::keyClicks(field(), "x");
        QCOMPARE(m_project->files().at(0)->notes(), "x");
        QCOMPARE(m_project->files().at(1)->notes(), "x");
        QCOMPARE(m_project->undoStack()->count(), 1);
        QCOMPARE(m_project->undoStack()->undoText(), "'Notes' change (2x)");
        QCOMPARE(listener.count, 1);
        m_project->undoStack()->undo();
        QCOMPARE(m_project->files().at(0)->notes(), "old");
        QVERIFY(m_project->files().at(1)->notes().isEmpty());
    }

    void typingInOneFileMerges()
    {
        edit({0});
        QTest::keyClicks(field(), "for the cushion");
        QCOMPARE(m_project->files().at(0)->notes(), "for the cushion");
        QCOMPARE(m_project->undoStack()->count(), 1);
        QCOMPARE(m_project->undoStack()->undoText(), "'Notes' change");
    }

    void undoGivesEachFileItsOwnText_data()
    {
        const Rows<bool> row("turns");
        row("at once", false);
        row("with the event loop turning", true);
    }

    void undoGivesEachFileItsOwnText()
    {
        QFETCH(bool, turns);
        const QStringList own{"roses", "leaves", QString()};
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
        const QStringList typed{"abc", "abc", "abc"};
        // Back and forth, as often as one likes.
        QTest::keyClicks(field(), "abc");
        for (int i = 0; i < 3; ++i) {
            turn();
            QCOMPARE(notes(), typed);
            QTest::keySequence(field(), QKeySequence::Undo);
            QCOMPARE(notes(), own);
            QTRY_COMPARE(field()->placeholderText(), "multiple values");
            turn();
            QTest::keySequence(field(), QKeySequence::Redo);
        }
        QCOMPARE(notes(), typed);
        QVERIFY(!m_project->undoStack()->isClean());
    }

    void deletedTextIsNotUndone()
    {
        m_project->files().at(0)->setNotes("roses");
        edit({0, 1});
        QTest::keyClicks(field(), "a");
        QTest::keyClick(field(), Qt::Key_Backspace);
        QVERIFY(m_project->files().at(0)->notes().isEmpty());
    }

    void otherFilesAreNotUndone()
    {
        m_project->files().at(1)->setNotes("abc");
        edit({0});
        QTest::keyClicks(field(), "abc");
        // The text is the same, and stays in the field as it is.
        edit({1});
        QTest::keySequence(field(), QKeySequence::Undo);
        QCOMPARE(m_project->files().at(1)->notes(), "abc");
        QCOMPARE(m_project->files().at(0)->notes(), "abc");
    }

    void changeFromElsewhereKeepsCursor()
    {
        edit({0});
        QTest::keyClicks(field(), "abc");
        QTextCursor cursor = field()->textCursor();
        cursor.setPosition(1);
        field()->setTextCursor(cursor);
        m_project->files().at(0)->notesProp()->announceChange();
        QCoreApplication::processEvents();
        QCOMPARE(field()->textCursor().position(), 1);
        m_project->files().at(0)->setNotes("other");
        QTRY_COMPARE(field()->toPlainText(), "other");
    }

private:
    void edit(const QList<int> &indexes)
    {
        QList<Property *> properties;
        for (int index : indexes)
            properties += m_project->files().at(index)->notesProp();
        m_editor->setProperties(properties);
    }

    QTextEdit *field() const { return m_window->findChild<GResizingTextEdit *>(); }

    QSharedPointer<Project> m_project;
    std::unique_ptr<QWidget> m_window;
    PropertyStringMultilineEdit *m_editor = nullptr;
    PropertyDescriptionString m_description{"notes", "Notes", "Notes"};
};

QTEST_MAIN(tst_notesedit)
#include "tst_notesedit.moc"
