#include "catalogue/query/QueryCompletion.h"
#include "catalogue/query/QueryLexer.h"

#include <QtTest>

class TestQueryCompletion : public QObject
{
    Q_OBJECT

private slots:
    void completes_data();
    void completes();
    void quotesAreReadBack();
};

/** In the queries, "|" is the cursor; what is replaced is put in brackets. */
void TestQueryCompletion::completes_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("replaced");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("common");
    const auto row = [](const char *query, const char *replaced, const char *written,
                        const char *common = "") {
        QTest::newRow(query) << QString::fromUtf8(query) << QString::fromUtf8(replaced)
                             << QString::fromUtf8(written) << QString::fromUtf8(common);
    };
    row("sti|", "[sti]", "stitches:", "stitches:");
    row("T|", "[T]", "tag: type: thread:");
    row("c|", "[c]", "colors: color:", "color");
    row("color|", "[color]", "colors: color:");
    row("red -na| x", "red -[na] x", "name:", "name:");
    row("|", "", "");
    row("-|", "", "");
    row("rose|", "", "");
    row("ta|g", "", "");
    row("tag |", "", "");
    row("\"ta|", "", "");
    row("tag:fl|", "tag:[fl]", "Flowers |flow chart|", "Flow");
    row("tag:FLOW|", "tag:[FLOW]", "Flowers |flow chart|", "");
    row("tag:flow |", "", "");
    row("tag:\"flow |", "tag:[\"flow ]", "|flow chart|", "flow chart");
    row("tag:Flowers|", "", "");
    row("tag:|", "tag:[]", "Flowers |flow chart|红");
    row("-tag:红|", "", "");
    row("tag:x|", "", "");
    row("is:u|", "is:[u]", "untagged unreadable", "un");
    row("color:bei|", "color:[bei]", "beige", "beige");
    row("name:fl|", "", "");
}

void TestQueryCompletion::completes()
{
    QFETCH(QString, query);
    const int cursor = query.indexOf(QLatin1Char('|'));
    query.remove(cursor, 1);
    const auto completion = QueryCompletion::at(query, cursor, {"Flowers", "flow chart", "红"});
    QString written;
    for (const auto &candidate : completion.candidates)
        written += candidate.written + (candidate.written.endsWith(':') ? " " : "");
    written.replace("\"flow chart\" ", "|flow chart|");
    QFETCH(QString, replaced);
    QTEST(written.trimmed(), "written");
    QTEST(completion.commonBeginning(), "common");
    if (completion.isEmpty())
        return;
    query.insert(completion.position + completion.length, QLatin1Char(']'));
    query.insert(completion.position, QLatin1Char('['));
    QCOMPARE(query, replaced);
}

void TestQueryCompletion::quotesAreReadBack()
{
    for (const char *text : {"rose", "to do", "5\" hoop", "\"", "“x” y", "a\"b", "<3"}) {
        const QString value = QString::fromUtf8(text);
        const auto terms = QueryLexer::terms("x tag:" + QueryLexer::quoted(value) + " y");
        QCOMPARE(terms.size(), 3);
        QCOMPARE(terms.at(1).text, value);
    }
}

QTEST_GUILESS_MAIN(TestQueryCompletion)
#include "tst_querycompletion.moc"
