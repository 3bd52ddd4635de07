#include "properties/ThrowHelper.h"
#include "properties/xml/ForeignXml.h"
#include "properties/xml/SimpleXmlWriter.h"
#include "properties/xml/XmlAttributeOrder.h"
#include "properties/xml/XmlTools.h"
#include "support/Rows.h"

#include <QDomDocument>
#include <QtTest>

static QByteArray serialized(const QDomDocument &document, XmlAttributeOrder order = {},
                             const QStringList &verbatim = {})
{
    return XmlTools::serialize(document, &order, verbatim, 4);
}

class TestXmlTools : public QObject
{
    Q_OBJECT

private slots:
    void roundTripKeepsTheAttributeOrder()
    {
        const QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                               "<root z=\"1\" a=\"2\">\n"
                               "    <!--remark-->\n"
                               "    <x:leaf b=\"1\" a=\"&amp;\">t&lt;</x:leaf>\n"
                               "    <cdata><![CDATA[<raw>]]></cdata>\n"
                               "</root>\n";
        QDomDocument document;
        XmlAttributeOrder order;
        QVERIFY(XmlTools::parse(document, xml, &order, nullptr, nullptr));
        QCOMPARE(serialized(document, order), xml);
        QVERIFY(serialized(document).contains("<root a=\"2\" z=\"1\">"));

        QString text;
        int line = 0;
        QVERIFY(!XmlTools::parse(document, "<r>\n<a>\n</b></r>", nullptr, &text, &line));
        QCOMPARE(line, 3);
        QVERIFY(!text.isEmpty());
    }

    void encodings_data()
    {
        const Rows<QByteArray, bool> row("xml", "accepted");
        row("none", "<r/>", true);
        row("UTF-8", "<?xml version='1.0' encoding='UTF-8'?><r/>", true);
        row("standalone", "<?xml version='1.0' encoding='UTF-8' standalone='yes'?><r/>", true);
        row("utf-8", "<?xml version='1.0' encoding='utf-8'?><r/>", false);
        row("latin", "<?xml version='1.0' encoding=\"ISO-8859-1\"?><r/>", false);
    }

    void encodings()
    {
        QFETCH(QByteArray, xml);
        QFETCH(bool, accepted);
        QDomDocument document;
        const QString message = messageOf<Error>(
            [&] { QVERIFY(XmlTools::parse(document, xml, nullptr, nullptr, nullptr)); });
        QCOMPARE(message, accepted
                              ? QStringLiteral("nothing thrown")
                              : QStringLiteral("Glossmark only supports UTF-8 encoded XML files"));
    }

    void hostile_data()
    {
        const Rows<QByteArray> row("xml");
        row("deep and closed",
            QByteArray("<a>").repeated(100000) + QByteArray("</a>").repeated(100000));
        row("growing text", "<!DOCTYPE r [<!ENTITY e 'lolol'>]><r>&e;</r>");
        row("growing attribute", "<!DOCTYPE r [<!ENTITY e 'lolol'>]><r a='&e;'/>");
        row("no utf-8", "<r>\xff\xfe\xfd</r><");
        row("nul", QByteArray("<r>\0</r>", 8));
    }

    void hostile()
    {
        QFETCH(QByteArray, xml);
        QDomDocument document;
        QString text;
        QVERIFY(!XmlTools::parse(document, xml, nullptr, &text, nullptr));
        QVERIFY(!text.isEmpty());
        text.clear();
        QVERIFY(!ForeignXml::parse(document, xml, &text));
        QVERIFY(!text.isEmpty());
    }

    void foreignBounds_data()
    {
        const Rows<QByteArray, bool> row("xml", "taken");
        const auto attributes = [](int count) {
            QByteArray list;
            for (int i = 0; i < count; ++i)
                list += " a" + QByteArray::number(i) + "=''";
            return list;
        };
        const auto declared = [](int count) {
            QByteArray list = "<!DOCTYPE r [<!ATTLIST r";
            for (int i = 0; i < count; ++i)
                list += " a" + QByteArray::number(i) + " CDATA 'x'";
            return list + ">]>";
        };
        const QByteArray longText(ForeignXml::MaximumTokenSize - 8192, 'x');
        const QByteArray longWord(ForeignXml::MaximumTokenSize, 'x');
        row("attributes", "<r" + attributes(ForeignXml::MaximumAttributes) + "/>", true);
        row("too many attributes", "<r" + attributes(ForeignXml::MaximumAttributes + 1) + "/>",
            false);
        row("sixty thousand attributes", "<r><e" + attributes(60'000) + "/></r>", false);
        row("declared attributes", declared(10) + "<r/>", true);
        row("sixty thousand declared", declared(60'000) + "<r/>", false);
        row("long text", "<r>" + longText + "<![CDATA[" + longText + "]]></r>", true);
        row("too long text", "<r>" + longWord + longWord + "</r>", false);
        row("endless tag", "<r a='" + longWord + longWord, false);
        row("many tokens", "<r>" + QByteArray("<a/>x").repeated(50'000) + "</r>", true);
        row("too large", "<r>" + QByteArray("<a/>").repeated(ForeignXml::MaximumSize / 4) + "</r>",
            false);
        row("cut off", "<r><a>", false);
        row("more than a chunk", "<r>" + QByteArray("<a>\xc3\xa4</a>").repeated(1000) + "</r>",
            true);
    }

    void foreignBounds()
    {
        QFETCH(QByteArray, xml);
        QFETCH(bool, taken);
        QDomDocument document;
        QString text;
        QCOMPARE(ForeignXml::parse(document, xml, &text), taken);
        QCOMPARE(text.isEmpty(), taken);
        if (taken)
            QCOMPARE(document.documentElement().tagName(), "r");
    }

    void anyEncoding()
    {
        QDomDocument document;
        const QByteArray latin =
            "<?xml version='1.0' encoding='iso-8859-1'?><r a:b='&amp;'>\xe4&lt;</r>";
        QVERIFY(ForeignXml::parse(document, latin));
        QCOMPARE(document.documentElement().text(), QString::fromUtf8("ä<"));
        QCOMPARE(document.documentElement().attribute("a:b"), "&");
    }

    void blanksAndVerbatim()
    {
        QDomDocument document;
        QVERIFY(XmlTools::parse(document, "<r>\n <a>  </a>\n <keep>  <b/> </keep></r>", nullptr,
                                nullptr, nullptr));
        QCOMPARE(serialized(document, {}, {"keep"}),
                 "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<r>\n    <a/>\n"
                 "    <keep>  <b/> </keep>\n</r>\n");
    }

    void textSurvives_data()
    {
        const Rows<QString, QString> row("text", "kept");
        for (const char *text :
             {"\ra\r\nb\r\r", "<a>&amp;]]>'\"", "\u0627\u0644 \u4e2d \U0001F9F5"})
            row(text, text, text);
        row("control", "a\u0001\u001f\u000cb", "ab");
        const QString a = "a";
        row("nul", a + QChar(0) + "b", "ab");
        row("not a character", a + QChar(0xfffe) + QChar(0xffff) + "b", "ab");
        row("lone surrogates", QChar(0xdc00) + a + QChar(0xd800) + "b" + QChar(0xd801), "ab");
    }

    void textSurvives()
    {
        QFETCH(QString, text);
        QFETCH(QString, kept);
        QDomDocument document;
        QDomElement root = document.createElement("r");
        document.appendChild(root);
        root.setAttribute("a", text);
        root.appendChild(document.createTextNode(text));
        const QByteArray bytes = serialized(document);
        QDomDocument read;
        QVERIFY(XmlTools::parse(read, bytes, nullptr, nullptr, nullptr));
        QCOMPARE(read.documentElement().text(), kept);
        QCOMPARE(read.documentElement().attribute("a"), kept);
        QCOMPARE(serialized(read), bytes);
    }

    void content()
    {
        QDomDocument document;
        QDomElement element = document.createElement("e");
        document.appendChild(element);
        const QString markup = "a <b>c</b> d";
        XmlTools::setXmlContent(document, element, markup);
        QCOMPARE(element.childNodes().count(), 3);
        QCOMPARE(XmlTools::xmlContent(element), markup);
        for (const char *noMarkup : {"a < b", "</root><root>"}) {
            XmlTools::setXmlContent(document, element, QString::fromLatin1(noMarkup));
            QCOMPARE(element.childNodes().count(), 1);
            QCOMPARE(element.text(), QString::fromLatin1(noMarkup));
        }
    }

    void simpleWriter()
    {
        QByteArray bytes;
        SimpleXmlWriter writer(&bytes, "report", {{"v", "1"}});
        writer.addElement("text", "a<b");
        writer.addElement("bad", QStringLiteral("x\u0001") + QChar(0xd800));
        writer.addElement("yes", QVariant(true));
        writer.addElement("none", QVariant());
        writer.addElement("real", QVariant(1.5));
        writer.addElement("map", QVariantMap({{"b", 2}, {"a", 1}}));
        writer.close();
        writer.close();
        QCOMPARE(bytes, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<report v=\"1\">\n"
                        "\t<text>a&lt;b</text>\n"
                        "\t<bad>x</bad>\n"
                        "\t<yes>true</yes>\n"
                        "\t<none>\n\t\t<!--invalid data-->\n\t</none>\n"
                        "\t<real>\n\t\t<!--unknown value type-->\n\t\t<!--1.5-->\n"
                        "\t</real>\n"
                        "\t<map>\n\t\t<a>1</a>\n\t\t<b>2</b>\n\t</map>\n"
                        "</report>\n");
    }
};

QTEST_MAIN(TestXmlTools)
#include "tst_xmltools.moc"
