#include "catalogue/models/FilterModel.h"
#include "catalogue/query/DuplicateIndex.h"
#include "catalogue/query/Query.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "LargeCatalogue.h"

#include <QtTest>

/** What a change of the filter costs over 100,000 designs. */
class BenchFilter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pass_data();
    void pass();
    void refreshOfAnUnchangedCatalogue();
    void sortAlone();
    void queryAlone_data();
    void queryAlone();
    void sortOrder_data();
    void sortOrder();
    void tagOfOneFile();

private:
    QSharedPointer<Project> m_project = QSharedPointer<Project>::create();
};

using Change = std::function<void(FilterModel &, bool)>;
Q_DECLARE_METATYPE(Change)

void BenchFilter::initTestCase()
{
    fillCatalogue(m_project.data(), 100000);
}

void BenchFilter::pass_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("folder", [](FilterModel &model, bool on) {
        model.setDirectory(on ? QStringLiteral("/home/user/Designs/Set 1") : QString());
    });
    row("tag", [](FilterModel &model, bool on) {
        model.setTag(on ? QStringLiteral("flowers") : QString());
    });
    row("type", [](FilterModel &model, bool on) {
        model.setFileType(on ? QStringLiteral("dst") : QString());
    });
    row("size", [](FilterModel &model, bool on) {
        model.setMaxDesignSize(on ? QSizeF(100, 100) : QSizeF(-1, -1));
    });
    row("search", [](FilterModel &model, bool on) {
        model.setSearchSubstring(on ? QStringLiteral("flower 77") : QString());
    });
    row("short search", [](FilterModel &model, bool on) {
        model.setSearchSubstring(on ? QStringLiteral("77") : QStringLiteral("7"));
    });
    row("favourites", [](FilterModel &model, bool on) { model.setFavoritesOnly(on); });
}

void BenchFilter::pass()
{
    QFETCH(Change, change);
    FilterModel model(m_project);
    bool on = false;
    QBENCHMARK
    {
        on = !on;
        change(model, on);
    }
}

void BenchFilter::refreshOfAnUnchangedCatalogue()
{
    FilterModel model(m_project);
    QBENCHMARK
    {
        model.refreshFilter();
    }
}

void BenchFilter::sortAlone()
{
    const QList<QSharedPointer<IFile>> files = m_project->files();
    QBENCHMARK
    {
        auto sorted = files;
        LocaleAwareFunctions::sort(sorted);
    }
}

void BenchFilter::queryAlone_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"flower 77", "77", "tag:flowers", "name:77", "stitches:<9000 fits:130x180", "color:red",
          "thread:\"Colour 4\"", "is:duplicate", "type:dst width:60..90 -color:blue flower"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void BenchFilter::queryAlone()
{
    QFETCH(QString, text);
    const QList<QSharedPointer<IFile>> files = m_project->files();
    QBENCHMARK
    {
        DuplicateIndex duplicates;
        duplicates.setFiles(files);
        const Query query = Query::parse(text);
        int count = 0;
        for (const QSharedPointer<IFile> &file : files)
            count += query.matches(*file, duplicates) ? 1 : 0;
        QVERIFY(count <= files.count());
    }
}

void BenchFilter::sortOrder_data()
{
    QTest::addColumn<int>("key");
    const QStringList names = SortOrder::keyNames();
    for (int key = 0; key < names.count(); ++key)
        QTest::newRow(qPrintable(names.at(key))) << key;
}

void BenchFilter::sortOrder()
{
    QFETCH(int, key);
    QList<QSharedPointer<IFile>> files = m_project->files();
    LocaleAwareFunctions::sort(files);
    const SortOrder order{SortOrder::Key(key), true};
    QBENCHMARK
    {
        QCOMPARE(int(order.order(files).size()), files.count());
    }
}

void BenchFilter::tagOfOneFile()
{
    FilterModel model(m_project);
    model.setTag(QStringLiteral("flowers"));
    const QSharedPointer<IFile> file = m_project->files().at(5);
    QBENCHMARK
    {
        file->tagsProp()->setValueWithoutUndoAndAnnounceChange({QStringLiteral("flowers")});
        file->tagsProp()->setValueWithoutUndoAndAnnounceChange({});
    }
}

QTEST_MAIN(BenchFilter)
#include "bench_filter.moc"
