#include "base/Error.h"
#include "catalogue/userdata/RememberedData.h"
#include "catalogue/userdata/UserDataDatabase.h"
#include "catalogue/userdata/UserDataStore.h"
#include "support/CatalogueFolder.h"
#include "support/Rows.h"

#include <QtTest>

class TestSavedSearches : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        close();
        m_directory = std::make_unique<QTemporaryDir>();
    }

    void keepsWhatIsChanged()
    {
        open();
        QSignalSpy changed(searches(), &SavedSearches::changed);
        searches()->add({"rose 10", "tag:\"to do\" 花"});
        searches()->add({" Rose 2 ", " x "});
        searches()->add({"old", "-"});
        searches()->rename("old", "Apple");
        searches()->rename("Apple", "Apple ");
        QCOMPARE(texts(searches()), "Apple=-|Rose 2= x |rose 10=tag:\"to do\" 花");
        searches()->remove("Rose 2");
        searches()->remove("Rose 3");
        QCOMPARE(changed.count(), 5);
        m_data->values()->setValue("fabric", "#123456");
        open();
        QCOMPARE(texts(searches()), "Apple=-|rose 10=tag:\"to do\" 花");
        QCOMPARE(fabric(), "#123456");
        // They are no designs that somebody wants to be forgotten.
        m_store->forgetAbsentDesigns();
        open();
        QCOMPARE(searches()->all().size(), 2);
    }

    void refusesNames()
    {
        SavedSearches searches;
        searches.add({"a", "1"});
        searches.add({"b", "2"});
        QVERIFY_EXCEPTION_THROWN(searches.add({" a ", "3"}), ErrorAlreadyExists);
        QVERIFY_EXCEPTION_THROWN(searches.add({"  ", "3"}), Error);
        QVERIFY_EXCEPTION_THROWN(searches.rename("a", "b"), ErrorAlreadyExists);
        searches.rename("a", "A");
        QCOMPARE(texts(&searches), "A=1|b=2");
    }

    void addsWhatIsMissing_data()
    {
        const Rows<QString, QString, QString> row("name", "query", "all");
        row("there", "a", "1", "a=1|a (2)=2");
        row("new", " b ", "3", "a=1|a (2)=2|b=3");
        row("taken", "a", "3", "a=1|a (2)=2|a (3)=3");
        row("added before", "a", "2", "a=1|a (2)=2");
        row("no name", " ", "3", "a=1|a (2)=2");
    }

    void addsWhatIsMissing()
    {
        QFETCH(QString, name);
        QFETCH(QString, query);
        SavedSearches searches;
        searches.addMissing({{"a", "1"}, {"a", "2"}});
        searches.addMissing({{name, query}});
        QTEST(texts(&searches), "all");
    }

    void keepsWhatCannotBeWrittenForNow()
    {
        open();
        searches()->add({"a", "1"});
        close();
        const QString away = path() + ".away";
        QVERIFY(QFile::rename(path(), away));
        QVERIFY(QDir().mkpath(path()));
        open();
        QSignalSpy failed(m_data.get(), &RememberedData::failed);
        QCOMPARE(searches()->all().size(), 0);
        searches()->add({"a", "2"});
        QTRY_COMPARE(failed.count(), 1);
        QVERIFY(failed.constLast().constFirst().toString().contains(path()));
        QVERIFY(!m_data->failure().isEmpty());
        QVERIFY(QDir().rmdir(path()));
        QVERIFY(QFile::rename(away, path()));
        m_data->tryAgain();
        QTRY_COMPARE(failed.count(), 2);
        QCOMPARE(failed.constLast().constFirst().toString(), "");
        QTRY_COMPARE(searches()->all().size(), 2);
        open();
        QCOMPARE(texts(searches()), "a=2|a (2)=1");
    }

    void takesTheOldFileOver_data()
    {
        const Rows<QByteArray, QString> row("content", "all");
        const QByteArray whole =
            R"({"searches": [{"name": "b", "query": "2"}, {"name": "a", "query": "3"}]})";
        row("whole", whole, "a=1|a (2)=3|b=2");
        // What can't be understood stays for somebody who can.
        row("cut off", whole.left(40), "a=1");
        row("no list", "{\"searches\": 3}", "a=1");
        row("empty", "", "a=1");
    }

    void takesTheOldFileOver()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, all);
        open();
        searches()->add({"a", "1"});
        QVERIFY(CatalogueFolder::write(oldFile(), content));
        for (int start = 0; start < 2; ++start) {
            open();
            QCOMPARE(texts(searches()), all);
        }
        QCOMPARE(QFile::exists(oldFile()), all == "a=1");
    }

    void salvagesADamagedFile_data()
    {
        const Rows<int, bool> row("damagedFrom", "cut"); // in per cent of the file
        row("cut", 50, true);
        row("end overwritten", 80, false);
    }

    void salvagesADamagedFile()
    {
        QFETCH(int, damagedFrom);
        QFETCH(bool, cut);
        open();
        searches()->add({"a", "1"});
        m_data->values()->setValue("fabric", "#123456");
        UserDataChanges changes;
        for (int i = 0; i < 300; ++i)
            changes.designs.append(
                {QString::number(i), "/d/" + QString::number(i), {"x"}, "y", true});
        m_store->record(changes);
        close();
        QByteArray bytes = CatalogueFolder::read(path());
        const int size = bytes.size();
        bytes.truncate(size * damagedFrom / 100);
        if (!cut)
            bytes.append(QByteArray(size - bytes.size(), '\xff'));
        QVERIFY(CatalogueFolder::write(path(), bytes));
        for (int start = 0; start < 2; ++start) {
            open();
            QCOMPARE(texts(searches()), "a=1");
            QCOMPARE(fabric(), "#123456");
        }
        const QDir folder(m_directory->path());
        const QStringList aside = folder.entryList({"user-data.damaged-*.sqlite"});
        QCOMPARE(aside.size(), 1);
        QCOMPARE(CatalogueFolder::read(folder.filePath(aside.first())), bytes);
    }

private:
    void open()
    {
        close();
        m_store = std::make_unique<UserDataStore>(path());
        m_data = std::make_unique<RememberedData>(m_store.get(), oldFile());
    }
    void close()
    {
        m_data.reset();
        m_store.reset();
    }
    SavedSearches *searches() const { return m_data->searches(); }
    QString fabric() const { return m_data->values()->value("fabric", {}); }
    QString path() const { return m_directory->filePath("user-data.sqlite"); }
    QString oldFile() const { return m_directory->filePath("saved-searches.json"); }
    static QString texts(const SavedSearches *searches)
    {
        QStringList list;
        for (const SavedSearch &search : searches->all())
            list << search.name + '=' + search.query;
        return list.join('|');
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<UserDataStore> m_store;
    std::unique_ptr<RememberedData> m_data;
};

QTEST_GUILESS_MAIN(TestSavedSearches)
#include "tst_savedsearches.moc"
