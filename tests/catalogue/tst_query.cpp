#include "catalogue/Catalogue.h"
#include "catalogue/query/DuplicateIndex.h"
#include "catalogue/query/Query.h"
#include "catalogue/query/QueryFields.h"

#include <QtTest>

/** The search language over a small collection; what it makes of any text. */
class TestQuery : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void finds_data();
    void finds();
    void remarks_data();
    void remarks();
    void leavesUnfinishedConditionsOut();
    void manualsTellEveryField_data();
    void manualsTellEveryField();

private:
    QSharedPointer<IFile> add(const QString &path, const QSizeF &size, int stitches,
                              const QStringList &threads, const QStringList &tags = {});
    QString found(const QString &query) const;

    const QDateTime m_now{QDate(2024, 6, 15), QTime(12, 0)};
    Catalogue m_catalogue;
    DuplicateIndex m_duplicates;
};

QSharedPointer<IFile> TestQuery::add(const QString &path, const QSizeF &size, int stitches,
                                     const QStringList &threads, const QStringList &tags)
{
    const auto file = m_catalogue.add(path, tags);
    file->setDesignSize(size);
    file->setStitchCount(stitches);
    file->setContentHash(path.toUtf8());
    QList<QSharedPointer<IThread>> list;
    for (const QString &text : threads) {
        const auto thread = QSharedPointer<Thread>::create(m_catalogue.project.data());
        thread->setColor(QColor(text.section(QLatin1Char(' '), 0, 0)));
        thread->setColorName(text.section(QLatin1Char(' '), 1));
        thread->setChart(QStringLiteral("Brother"));
        list.append(thread);
    }
    file->setThreads(list);
    return file;
}

/**
 * Known as r(ose), t(ulip), b(all), s(tar) and u(nreadable), and as n(ew) what hasn't been
 * read yet.
 */
void TestQuery::initTestCase()
{
    const auto rose = add("/home/ann/Xmas Roses/r.pes", {100, 129.6}, 10311,
                          {"#ed171f Red", "#f64a8a Deep Rose"}, {"Flowers", "to do"});
    rose->setNotes("for the wedding, see 12:30 and tag:flowers");
    rose->setModificationDate(unsigned(m_now.addDays(-3).toSecsSinceEpoch()));
    rose->setFavorite(true);
    const auto tulip = add("/home/ann/t.DST", {180, 130}, 5000, {"#008777 Teal Green"},
                           {"flowers", "the \"big\" one"});
    tulip->setModificationDate(unsigned(QDateTime(QDate(2024, 2, 29), {}).toSecsSinceEpoch()));
    const auto ball = add("/home/ann/sport/b.pes", {101.6, 50.4}, 9999,
                          {"#c03020", "#000000", "#ffffff"}, {"done"});
    ball->setModificationDate(
        unsigned(QDateTime(QDate(2023, 12, 31), {23, 59}).toSecsSinceEpoch()));
    ball->setName("Football red");
    add("/home/ann/xmas/s.pes", {20, 20}, 0, {})->setContentHash(ball->contentHash());
    add("/home/ann/u.pes", {-1, -1}, 0, {});
    add("/home/ann/n.pes", {-1, -1}, 0, {})->setContentHash({});
    m_duplicates.setFiles(m_catalogue.project->files());
}

/** The first letters of the names, in order. */
QString TestQuery::found(const QString &text) const
{
    const Query query = Query::parse(text, m_now);
    QString letters;
    const auto files = m_catalogue.project->files();
    for (const auto &file : files) {
        if (query.matches(*file, m_duplicates))
            letters += QFileInfo(file->absoluteFilePath()).baseName();
    }
    std::sort(letters.begin(), letters.end());
    return letters;
}

void TestQuery::finds_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("letters");
    const auto row = [](const char *query, const char *letters) {
        QTest::newRow(query) << QString::fromUtf8(query) << QString::fromUtf8(letters);
    };
    // Plain as ever: blanks and quotation marks are part of the text.
    row("12:30", "r");
    row("wedding, see", "r");
    row("\"wedding\"", "");
    row("  wedding", "");
    row("and tag", "r");
    row("\"tag:flowers\"", "r");
    row("fox:red", "");
    row("wedding tag:flowers for", "");
    row("tag:flowers   for   stitches:>1 the", "r");
    row("\"for the\" is:favorite", "r");
    row("TAG:flowers", "rt");
    row("tag:flower", "");
    row("-tag:Flowers", "bnsu");
    row("tag:\"to do\"", "r");
    row("tag:“to do” type:pes", "r");
    row("tag：flowers　type：dst", "t");
    row("tag:\"the \"\"big\"\" one\"", "t");
    row("tag:\"to do", "r");
    row("- tag:flowers", "");
    row("name:FOOT", "b");
    row("name:b", "b");
    row("folder:xmas", "rs");
    row("folder:pes", "");
    row("type:dst", "t");
    row("type:.PES -type:dst", "bnrsu");
    row("type:es", "");
    row("stitches:<10000", "bst");
    row("stitches:10311", "r");
    row("stitches:>=9.999 stitches:<=10,311", "br");
    row("-stitches:<10000", "nru");
    row("stitches:0", "s");
    row("stitches:5000..9999", "bt");
    row("stitches:..9998", "st");
    row("stitches:5001..", "br");
    row("colors:2", "r");
    row("colours:≥2", "br");
    row("width:100", "r");
    row("width:<=100", "rs");
    row("width:4in", "b");
    row("width:<4\"", "rs");
    row("width:10..10.2cm", "br");
    row("width:>12,5cm", "t");
    row("height:50", "b");
    row("height:\"< 51 mm\"", "bs");
    row("fits:130x180", "brst");
    row("fits:180×130", "brst");
    row("fits:100x130", "brs");
    row("fits:100x100", "s");
    row("fits:5.2x7.1in", "brst");
    row("color:red", "br");
    row("color:#c03020", "br");
    row("color:#c06020", "");
    row("color:rot color:白", "b");
    row("-color:Türkis", "bnrsu");
    row("thread:\"Deep Rose\"", "r");
    row("thread:brother", "brt");
    row("date:<7d", "r");
    row("date:7d", "r");
    row("-added:<7d", "bnstu");
    row("date:>1w", "bt");
    row("date:<6m", "brt");
    row("date:<5m", "rt");
    row("date:2023", "b");
    row("date:2024-02", "t");
    row("date:2024-02-29", "t");
    row("date:>2023", "rt");
    row("date:<=2023-12-31", "b");
    row("date:2023..2024-02", "bt");
    row("is:favourite", "r");
    row("is:Untagged", "nsu");
    row("is:duplicate", "bs");
    row("is:unreadable", "u");
    row("-is:duplicate -is:untagged", "rt");
    row("is:\"favorite\"red", "bnrstu"); // a mistake restricts nothing here
}

void TestQuery::finds()
{
    QFETCH(QString, query);
    QTEST(found(query), "letters");
}

void TestQuery::remarks_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("passage"); // empty for no remark at all
    QTest::addColumn<int>("kind");
    const auto row = [](const char *query, const char *passage, QueryRemark::Kind kind) {
        QTest::newRow(query) << QString::fromUtf8(query) << QString::fromUtf8(passage) << int(kind);
    };
    for (const char *fine : {"", "rose", "12:30", "http://a", "is", "tag:x", "-date:1y", "\"is:\"",
                             "stitches:10.000", "at:home"})
        row(fine, "", QueryRemark::Hint);
    for (const char *wrong : {"stitches:many", "stitches:<",    "stitches:-5",
                              "stitches:1..x", "stitches:9..5", "colors:..",
                              "stitches:10.5", "stitches:1e3",  "width:wide",
                              "width:5ft",     "fits:130",      "fits:1x2x3",
                              "color:reddish", "color:#12",     "color:transparent",
                              "is:fav",        "date:2024-13",  "date:2023-02-29",
                              "date:7h",       "date:7d..9d",   "date:0",
                              "-is:x",         "is:\"x y\"",    "width:99999999999999999999999999"})
        row(wrong, wrong, QueryRemark::Mistake);
    row("rose  is:fav tag:x", "is:fav", QueryRemark::Mistake);
    row("is:a is:b", "is:a", QueryRemark::Mistake);
    row("tag: is:b", "is:b", QueryRemark::Mistake);
    row("tag: rose", "tag:", QueryRemark::Unfinished);
    row("red -tag:\"", "-tag:\"", QueryRemark::Unfinished);
    row("stiches:<100", "stiches:<100", QueryRemark::Hint);
    row("tag:x -tgs:y", "", QueryRemark::Hint);
    row("tag:x -folders:y", "-folders:y", QueryRemark::Hint);
}

void TestQuery::remarks()
{
    QFETCH(QString, query);
    QFETCH(QString, passage);
    const auto remark = Query::parse(query, m_now).remark();
    QCOMPARE(remark.has_value(), !passage.isEmpty());
    if (!remark)
        return;
    QCOMPARE(query.mid(remark->position, remark->length), passage);
    QTEST(int(remark->kind), "kind");
    QVERIFY(!remark->message.isEmpty());
}

void TestQuery::leavesUnfinishedConditionsOut()
{
    QCOMPARE(found("tag:"), QStringLiteral("bnrstu"));
    QCOMPARE(found("tag:flowers -type:"), QStringLiteral("rt"));
    QVERIFY(Query::parse("tag:").isValid());
    QVERIFY(!Query::parse("tag: is:x").isValid());
}

void TestQuery::manualsTellEveryField_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"manual.md", "manual.de.md", "manual.zh-CN.md"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

/** The manual tells of each field with the example that the help shows. */
void TestQuery::manualsTellEveryField()
{
    QFETCH(QString, name);
    QFile manual(QStringLiteral(TEST_DATA_DIR "/../../docs/") + name);
    QVERIFY(manual.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(manual.readAll());
    for (const QueryField &field : QueryFields::all()) {
        QVERIFY2(text.contains(QStringLiteral("| `%1`").arg(field.example)),
                 qPrintable(field.example));
        const Query query = Query::parse(field.example, m_now);
        QVERIFY2(!query.remark(), qPrintable(field.example));
    }
}

QTEST_GUILESS_MAIN(TestQuery)
#include "tst_query.moc"
