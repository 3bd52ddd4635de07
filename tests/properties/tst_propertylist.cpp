#include "properties/core/GProject.h"
#include "properties/core/PropertyValues.h"
#include "properties/lists/PropertyListT.h"
#include "properties/RecordingObserver.h"
#include "properties/ThrowHelper.h"
#include "properties/undo/GUndoStack.h"

#include <QtTest>

/** Ordered by the first letter only, so that distinct elements may compare equal. */
class Word : public PropertyString
{
public:
    Word(GProject *project, const QString &text) : PropertyString(project, "word", text) {}
};

static bool operator<(const Word &a, const Word &b)
{
    return a.value().left(1) < b.value().left(1);
}

using Words = PropertyListT<Word>;

class TestPropertyList : public QObject
{
    Q_OBJECT

private slots:
    void init() { stack()->clear(); }

    void sortedInsertion()
    {
        Words list(&m_project, "l", true);
        for (const char *letter : {"d", "b1", "f", "a"})
            list.addWithoutUndo(word(letter));
        QVERIFY(!stack()->canUndo());
        // Elements that compare equal keep their order of arrival.
        for (const char *letter : {"c", "b2", "b3", "e"})
            list.add(word(letter), "add");
        QCOMPARE(text(list), "a b1 b2 b3 c d e f");
        stack()->setIndex(2);
        QCOMPARE(text(list), "a b1 b2 c d f");
        stack()->clear();
    }

    void replacementIsSorted()
    {
        Words list(&m_project, "l", true);
        RecordingObserver observer;
        list.registerObserver(&observer);
        QList<QSharedPointer<Word>> words;
        for (const char *letter : {"c", "b2", "a", "b1"})
            words << QSharedPointer<Word>(word(letter));
        list.replaceListWithoutUndo(words);
        QCOMPARE(text(list), "a b2 b1 c");
        list.setValueWithoutUndoAndAnnounceChange(list.value());
        QCOMPARE(observer.heard.count(), 2);
        QVERIFY(!stack()->canUndo());
    }

    void removeAndUndo()
    {
        Words list(&m_project, "l", true);
        for (const char *letter : {"a", "b", "c"})
            list.addWithoutUndo(word(letter));
        Word *b = list.at(1);
        list.remove(b, "remove");
        QCOMPARE(text(list), "a c");
        stack()->undo();
        QCOMPARE(list.at(1), b);
        QCOMPARE(b->value(), "b");
        list.clear({});
        QCOMPARE(list.count(), 0);
        stack()->undo();
        list.remove(0, {});
        QCOMPARE(stack()->count(), 1);
        QCOMPARE(text(list), "b c");
        stack()->clear();
    }

    void removeOfWhatIsNotThere()
    {
        Words list(&m_project, "l", true);
        list.addWithoutUndo(word("a"));
        RecordingObserver observer;
        list.registerObserver(&observer);
        const QScopedPointer<Word> stranger(word("a"));
        list.remove(stranger.data(), {});
        list.remove(7, {});
        QVERIFY(!stack()->canUndo());
        QVERIFY(observer.heard.isEmpty());
        list.removeWithoutUndo(-1);
        QCOMPARE(list.count(), 1);
        QCOMPARE(observer.heard.count(), 1);
    }

    void wrongTypes()
    {
        Words list(&m_project, "l", true);
        const auto other = [this] { return new PropertyInt(&m_project, "i", 0); };
        const QString message = "cannot add 'i' to list 'l', wrong type";
        QCOMPARE(messageOf<ErrorTypeConflict>([&] { list.add(other(), {}); }), message);
        QCOMPARE(messageOf<ErrorTypeConflict>([&] { list.addWithoutUndo(other()); }), message);
        const QSharedPointer<Property> shared(other());
        QCOMPARE(messageOf<ErrorTypeConflict>([&] { list.addShared(shared, {}); }), message);
        QCOMPARE(messageOf<ErrorTypeConflict>([&] { list.addSharedWithoutUndo(shared); }), message);
        QCOMPARE(messageOf<ErrorTypeConflict>([&] { list.addWithoutUndo(nullptr); }),
                 "cannot add '' to list 'l', wrong type");
        QCOMPARE(list.count(), 0);
        QVERIFY(!stack()->canUndo());

        list.setValueWithoutUndoAndAnnounceChange({shared});
        const QString found = "property 'i' in list 'l' has wrong type'";
        QCOMPARE(messageOf<ErrorTypeConflict>([&] { list.at(0); }), found);
        QCOMPARE(messageOf<ErrorTypeConflict>([&] { list.sharedAt(0); }), found);
    }

    void sorting()
    {
        Words sorted(&m_project, "l", true);
        const QSharedPointer<Property> b(word("b"));
        const QSharedPointer<Property> a(word("a"));
        sorted.setValueWithoutUndoAndAnnounceChange({b, a});
        QCOMPARE(text(sorted), "b a");
        sorted.sort();
        QCOMPARE(text(sorted), "a b");
        QCOMPARE(stack()->undoText(), "sort list");
        sorted.sort();
        QCOMPARE(stack()->count(), 1);
        stack()->clear();

        PropertyList plain(&m_project, "p", false);
        for (int i = 0; i < 100; ++i)
            plain.addWithoutUndo(new PropertyInt(&m_project, "i", i));
        plain.sort();
        QVERIFY(!stack()->canUndo());
    }

    void findByName()
    {
        const auto key = [](Property *element) { return static_cast<Word *>(element)->value(); };
        for (const bool sorted : {false, true}) {
            Words list(&m_project, "l", sorted);
            QVERIFY(!list.findByName("a", key));
            for (const char *letter : {"a", "c", "e", "g"})
                list.addWithoutUndo(word(letter));
            QCOMPARE(list.findByName("e", key), list.value().at(2));
            QVERIFY(!list.findByName("d", key));
            QVERIFY(!list.findByName("z", key));
        }
    }

private:
    QString text(const Words &list) const
    {
        QStringList words;
        for (int i = 0; i < list.count(); ++i)
            words << list.at(i)->value();
        return words.join(QLatin1Char(' '));
    }

    Word *word(const char *text) { return new Word(&m_project, QString::fromLatin1(text)); }
    GUndoStack *stack() { return m_project.undoStack(); }

    GProject m_project{"document", {}};
};

QTEST_MAIN(TestPropertyList)
#include "tst_propertylist.moc"
