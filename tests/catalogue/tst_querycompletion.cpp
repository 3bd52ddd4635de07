#include "catalogue/query/QueryCompletion.h"
#include "catalogue/query/QueryLexer.h"
#include "support/Rows.h"

#include <QtTest>

class TestQueryCompletion : public QObject
{
    Q_OBJECT

private slots:
    /** In the queries, "|" is the cursor; what is replaced is put in brackets. */
    void completes_data()
    {
        const Rows<QString, QString, QString> row("replaced", "written", "common");
        row("sti|", "[sti]", "stitches:", "stitches:");
        row("T|", "[T]", "tag: type: thread:", "");
        row("c|", "[c]", "colors: color:", "color");
        row("color|", "[color]", "colors: color:", "");
        row("red -na| x", "red -[na] x", "name:", "name:");
        row("|", "", "", "");
        row("-|", "", "", "");
        row("rose|", "", "", "");
        row("ta|g", "", "", "");
        row("tag |", "", "", "");
        row("\"ta|", "", "", "");
        row("tag:fl|", "tag:[fl]", "Flowers |flow chart|", "Flow");
        row("tag:FLOW|", "tag:[FLOW]", "Flowers |flow chart|", "");
        row("tag:flow |", "", "", "");
        row("tag:\"flow |", "tag:[\"flow ]", "|flow chart|", "flow chart");
        row("tag:Flowers|", "", "", "");
        row("tag:|", "tag:[]", "Flowers |flow chart|红", "");
        row("-tag:红|", "", "", "");
        row("tag:x|", "", "", "");
        row("is:u|", "is:[u]", "untagged unreadable", "un");
        row("color:bei|", "color:[bei]", "beige", "beige");
        row("name:fl|", "", "", "");
    }

    void completes()
    {
        QString query = QTest::currentDataTag();
        const int cursor = query.indexOf(QLatin1Char('|'));
        query.remove(cursor, 1);
        const auto completion = QueryCompletion::at(query, cursor, {"Flowers", "flow chart", "红"});
        QString written;
        for (const auto &candidate : completion.candidates)
            written += candidate.written + (candidate.written.endsWith(':') ? " " : "");
        written.replace("\"flow chart\" ", "|flow chart|");
        QTEST(written.trimmed(), "written");
        QTEST(completion.commonBeginning(), "common");
        if (completion.isEmpty())
            return;
        query.insert(completion.position + completion.length, QLatin1Char(']'));
        query.insert(completion.position, QLatin1Char('['));
        QTEST(query, "replaced");
    }

    void quotesAreReadBack()
    {
        for (const char *text : {"rose", "to do", "5\" hoop", "\"", "“x” y", "a\"b", "<3"}) {
            const QString value = QString::fromUtf8(text);
            const auto terms = QueryLexer::terms("x tag:" + QueryLexer::quoted(value) + " y");
            QCOMPARE(terms.size(), 3);
            QCOMPARE(terms.at(1).text, value);
        }
    }
};

QTEST_GUILESS_MAIN(TestQueryCompletion)
#include "tst_querycompletion.moc"
