#include "catalogue/Catalogue.h"
#include "catalogue/query/DuplicateIndex.h"
#include "catalogue/query/Query.h"
#include "catalogue/query/QueryFields.h"
#include "support/Rows.h"
#include "support/TableFile.h"

#include <QtTest>

Q_DECLARE_METATYPE(QueryRemark::Kind)

/** The search language over a small collection; what it makes of any text. */
class TestQuery : public QObject
{
    Q_OBJECT

private slots:
    /**
     * Known as r(ose), t(ulip), b(all), s(tar) and u(nreadable), and as n(ew) what hasn't been
     * read yet.
     */
    void initTestCase()
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

    void finds_data()
    {
        const Rows<QString> row("letters");
        for (const QStringList &columns : tableFile("queries.txt"))
            row(columns.at(0).toUtf8(), columns.at(1));
    }

    void finds() { QTEST(found(QTest::currentDataTag()), "letters"); }

    void remarks_data()
    {
        // passage: empty for no remark at all
        const Rows<QString, QueryRemark::Kind> row("passage", "kind");
        for (const char *fine : {"", "rose", "12:30", "http://a", "is", "tag:x", "-date:1y",
                                 "\"is:\"", "stitches:10.000", "at:home"})
            row(fine, "", QueryRemark::Hint);
        for (const char *wrong :
             {"stitches:many", "stitches:<",    "stitches:-5",
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

    void remarks()
    {
        const QString query = QTest::currentDataTag();
        QFETCH(QString, passage);
        const auto remark = Query::parse(query, m_now).remark();
        QCOMPARE(remark.has_value(), !passage.isEmpty());
        if (!remark)
            return;
        QCOMPARE(query.mid(remark->position, remark->length), passage);
        QTEST(remark->kind, "kind");
        QVERIFY(!remark->message.isEmpty());
    }

    void leavesUnfinishedConditionsOut()
    {
        QCOMPARE(found("tag:"), "bnrstu");
        QCOMPARE(found("tag:flowers -type:"), "rt");
        QVERIFY(Query::parse("tag:").isValid());
        QVERIFY(!Query::parse("tag: is:x").isValid());
    }

    void manualsTellEveryField_data()
    {
        const Rows<QString> row("name");
        for (const char *name : {"manual.md", "manual.de.md", "manual.zh-CN.md"})
            row(name, QString::fromLatin1(name));
    }

    /** The manual tells of each field with the example that the help shows. */
    void manualsTellEveryField()
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

private:
    QSharedPointer<IFile> add(const QString &path, const QSizeF &size, int stitches,
                              const QStringList &threads, const QStringList &tags = {})
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
            thread->setChart("Brother");
            list.append(thread);
        }
        file->setThreads(list);
        return file;
    }

    /** The first letters of the names, in order. */
    QString found(const QString &text) const
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

    const QDateTime m_now{QDate(2024, 6, 15), QTime(12, 0)};
    Catalogue m_catalogue;
    DuplicateIndex m_duplicates;
};

QTEST_GUILESS_MAIN(TestQuery)
#include "tst_query.moc"
