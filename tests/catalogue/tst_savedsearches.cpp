#include "base/Error.h"
#include "catalogue/query/SavedSearchesFile.h"
#include "support/Rows.h"

#include <QtTest>

class TestSavedSearches : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_directory = std::make_unique<QTemporaryDir>(); }

    void keepsWhatIsChanged()
    {
        SavedSearchesFile searches(path());
        QSignalSpy changed(&searches, &SavedSearches::changed);
        searches.add({"rose 10", "tag:\"to do\" 花"});
        searches.add({" Rose 2 ", " x "});
        searches.add({"old", "-"});
        searches.rename("old", "Apple");
        searches.rename("Apple", "Apple ");
        QCOMPARE(texts(searches), "Apple=-|Rose 2= x |rose 10=tag:\"to do\" 花");
        searches.remove("Rose 2");
        searches.remove("Rose 3");
        QCOMPARE(changed.count(), 6);
        QCOMPARE(SavedSearchesFile(path()).all(), searches.all());
        QCOMPARE(searches.all().count(), 2);
    }

    void refusesNames()
    {
        SavedSearchesFile searches(path());
        searches.add({"a", "1"});
        searches.add({"b", "2"});
        QVERIFY_EXCEPTION_THROWN(searches.add({" a ", "3"}), ErrorAlreadyExists);
        QVERIFY_EXCEPTION_THROWN(searches.add({"  ", "3"}), Error);
        QVERIFY_EXCEPTION_THROWN(searches.rename("a", "b"), ErrorAlreadyExists);
        searches.rename("a", "A");
        QCOMPARE(texts(searches), "A=1|b=2");
    }

    void changesNothingWhenItCannotWrite()
    {
        SavedSearchesFile searches(path());
        searches.add({"a", "1"});
        QSignalSpy changed(&searches, &SavedSearches::changed);
        QVERIFY(QDir(m_directory->filePath("data")).removeRecursively());
        QFile inTheWay(m_directory->filePath("data"));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        QVERIFY_EXCEPTION_THROWN(searches.remove("a"), Error);
        QCOMPARE(texts(searches), "a=1");
        QCOMPARE(changed.count(), 0);
    }

    void setsADamagedFileAside_data()
    {
        const Rows<QByteArray> row("content");
        row("cut off", "{\"searches\": [{\"name\": \"a\"");
        row("no list", "{\"searches\": 3}");
        row("empty", {});
        row("newer form", "[1, 2]");
    }

    void setsADamagedFileAside()
    {
        QFETCH(QByteArray, content);
        QVERIFY(QDir().mkpath(m_directory->filePath("data")));
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        SavedSearchesFile searches(path());
        QVERIFY(searches.all().isEmpty());
        QVERIFY(!QFile::exists(path() + ".bak"));
        searches.add({"new", "x"});
        searches.add({"newer", "y"});
        QFile backup(path() + ".bak");
        QVERIFY(backup.open(QIODevice::ReadOnly));
        QCOMPARE(backup.readAll(), content);
        QCOMPARE(SavedSearchesFile(path()).all().count(), 2);
    }

private:
    QString path() const
    {
        return SavedSearchesFile::besideCatalogue(m_directory->filePath("data/catalogue.xml"));
    }
    static QString texts(const SavedSearches &searches)
    {
        QStringList list;
        for (const SavedSearch &search : searches.all())
            list << search.name + '=' + search.query;
        return list.join('|');
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

QTEST_GUILESS_MAIN(TestSavedSearches)
#include "tst_savedsearches.moc"
