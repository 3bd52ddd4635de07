#include "properties/ThrowHelper.h"
#include "properties/xml/ForeignXml.h"
#include "properties/xml/SimpleXmlWriter.h"
#include "properties/xml/XmlAttributeOrder.h"
#include "properties/xml/XmlTools.h"

#include <QDomDocument>
#include <QtTest>

class TestXmlTools : public QObject
{
    Q_OBJECT

private slots:
    void roundTripKeepsTheAttributeOrder();
    void encodings_data();
    void encodings();
    void hostile_data();
    void hostile();
    void foreignBounds_data();
    void foreignBounds();
    void anyEncoding();
    void blanksAndVerbatim();
    void textSurvives_data();
    void textSurvives();
    void content();
    void simpleWriter();
};

static QByteArray serialized(const QDomDocument &document, XmlAttributeOrder order = {},
                             const QStringList &verbatim = {})
{
    return XmlTools::serialize(document, &order, verbatim, 4);
}

void TestXmlTools::roundTripKeepsTheAttributeOrder()
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

void TestXmlTools::encodings_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("none") << QByteArray("<r/>") << true;
    QTest::newRow("UTF-8") << QByteArray("<?xml version='1.0' encoding='UTF-8'?><r/>") << true;
    QTest::newRow("standalone")
        << QByteArray("<?xml version='1.0' encoding='UTF-8' standalone='yes'?><r/>") << true;
    QTest::newRow("utf-8") << QByteArray("<?xml version='1.0' encoding='utf-8'?><r/>") << false;
    QTest::newRow("latin") << QByteArray("<?xml version='1.0' encoding=\"ISO-8859-1\"?><r/>")
                           << false;
}

void TestXmlTools::encodings()
{
    QFETCH(QByteArray, xml);
    QFETCH(bool, accepted);
    QDomDocument document;
    const QString message = messageOf<Error>(
        [&] { QVERIFY(XmlTools::parse(document, xml, nullptr, nullptr, nullptr)); });
    QCOMPARE(message, accepted ? QStringLiteral("nothing thrown")
                               : QStringLiteral("Glossmark only supports UTF-8 encoded XML files"));
}

void TestXmlTools::hostile_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::newRow("deep and closed")
        << QByteArray("<a>").repeated(100000) + QByteArray("</a>").repeated(100000);
    QTest::newRow("growing text") << QByteArray("<!DOCTYPE r [<!ENTITY e 'lolol'>]><r>&e;</r>");
    QTest::newRow("growing attribute")
        << QByteArray("<!DOCTYPE r [<!ENTITY e 'lolol'>]><r a='&e;'/>");
    QTest::newRow("no utf-8") << QByteArray("<r>\xff\xfe\xfd</r><");
    QTest::newRow("nul") << QByteArray("<r>\0</r>", 8);
}

void TestXmlTools::hostile()
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

void TestXmlTools::foreignBounds_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<bool>("taken");
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
    const auto add = [](const char *name, const QByteArray &xml, bool taken) {
        QTest::newRow(name) << xml << taken;
    };
    add("attributes", "<r" + attributes(ForeignXml::MaximumAttributes) + "/>", true);
    add("too many attributes", "<r" + attributes(ForeignXml::MaximumAttributes + 1) + "/>", false);
    add("sixty thousand attributes", "<r><e" + attributes(60'000) + "/></r>", false);
    add("declared attributes", declared(10) + "<r/>", true);
    add("sixty thousand declared", declared(60'000) + "<r/>", false);
    add("long text", "<r>" + longText + "<![CDATA[" + longText + "]]></r>", true);
    add("too long text", "<r>" + longWord + longWord + "</r>", false);
    add("endless tag", "<r a='" + longWord + longWord, false);
    add("many tokens", "<r>" + QByteArray("<a/>x").repeated(50'000) + "</r>", true);
    add("too large", "<r>" + QByteArray("<a/>").repeated(ForeignXml::MaximumSize / 4) + "</r>",
        false);
    add("cut off", "<r><a>", false);
    add("more than a chunk", "<r>" + QByteArray("<a>\xc3\xa4</a>").repeated(1000) + "</r>", true);
}

void TestXmlTools::foreignBounds()
{
    QFETCH(QByteArray, xml);
    QFETCH(bool, taken);
    QDomDocument document;
    QString text;
    QCOMPARE(ForeignXml::parse(document, xml, &text), taken);
    QCOMPARE(text.isEmpty(), taken);
    if (taken)
        QCOMPARE(document.documentElement().tagName(), QStringLiteral("r"));
}

void TestXmlTools::anyEncoding()
{
    QDomDocument document;
    const QByteArray latin =
        "<?xml version='1.0' encoding='iso-8859-1'?><r a:b='&amp;'>\xe4&lt;</r>";
    QVERIFY(ForeignXml::parse(document, latin));
    QCOMPARE(document.documentElement().text(), QString::fromUtf8("ä<"));
    QCOMPARE(document.documentElement().attribute("a:b"), QStringLiteral("&"));
}

void TestXmlTools::blanksAndVerbatim()
{
    QDomDocument document;
    QVERIFY(XmlTools::parse(document, "<r>\n <a>  </a>\n <keep>  <b/> </keep></r>", nullptr,
                            nullptr, nullptr));
    QCOMPARE(serialized(document, {}, {QStringLiteral("keep")}),
             QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<r>\n    <a/>\n"
                        "    <keep>  <b/> </keep>\n</r>\n"));
}

void TestXmlTools::textSurvives_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kept");
    const auto same = [](const char *name, const QString &text) {
        QTest::newRow(name) << text << text;
    };
    same("carriage returns", QStringLiteral("\ra\r\nb\r\r"));
    same("markup", QStringLiteral("<a>&amp;]]>'\""));
    same("scripts", QStringLiteral("\u0627\u0644 \u4e2d \U0001F9F5"));
    QTest::newRow("control") << QStringLiteral("a\u0001\u001f\u000cb") << QStringLiteral("ab");
    QTest::newRow("nul") << QStringLiteral("a") + QChar(0) + QChar('b') << QStringLiteral("ab");
    QTest::newRow("not a character")
        << QStringLiteral("a") + QChar(0xfffe) + QChar(0xffff) + QChar('b') << QStringLiteral("ab");
    QTest::newRow("lone surrogates")
        << QChar(0xdc00) + QStringLiteral("a") + QChar(0xd800) + QStringLiteral("b") + QChar(0xd801)
        << QStringLiteral("ab");
}

void TestXmlTools::textSurvives()
{
    QFETCH(QString, text);
    QFETCH(QString, kept);
    QDomDocument document;
    QDomElement root = document.createElement(QStringLiteral("r"));
    document.appendChild(root);
    root.setAttribute(QStringLiteral("a"), text);
    root.appendChild(document.createTextNode(text));
    const QByteArray bytes = serialized(document);
    QDomDocument read;
    QVERIFY(XmlTools::parse(read, bytes, nullptr, nullptr, nullptr));
    QCOMPARE(read.documentElement().text(), kept);
    QCOMPARE(read.documentElement().attribute(QStringLiteral("a")), kept);
    QCOMPARE(serialized(read), bytes);
}

void TestXmlTools::content()
{
    QDomDocument document;
    QDomElement element = document.createElement(QStringLiteral("e"));
    document.appendChild(element);
    const QString markup = QStringLiteral("a <b>c</b> d");
    XmlTools::setXmlContent(document, element, markup);
    QCOMPARE(element.childNodes().count(), 3);
    QCOMPARE(XmlTools::xmlContent(element), markup);
    for (const char *noMarkup : {"a < b", "</root><root>"}) {
        XmlTools::setXmlContent(document, element, QString::fromLatin1(noMarkup));
        QCOMPARE(element.childNodes().count(), 1);
        QCOMPARE(element.text(), QString::fromLatin1(noMarkup));
    }
}

void TestXmlTools::simpleWriter()
{
    QByteArray bytes;
    SimpleXmlWriter writer(&bytes, QStringLiteral("report"),
                           {{QStringLiteral("v"), QStringLiteral("1")}});
    writer.addElement(QStringLiteral("text"), "a<b");
    writer.addElement(QStringLiteral("bad"), QStringLiteral("x\u0001") + QChar(0xd800));
    writer.addElement(QStringLiteral("yes"), QVariant(true));
    writer.addElement(QStringLiteral("none"), QVariant());
    writer.addElement(QStringLiteral("real"), QVariant(1.5));
    writer.addElement(QStringLiteral("map"),
                      QVariantMap({{QStringLiteral("b"), 2}, {QStringLiteral("a"), 1}}));
    writer.close();
    writer.close();
    QCOMPARE(bytes, QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                               "<report v=\"1\">\n"
                               "\t<text>a&lt;b</text>\n"
                               "\t<bad>x</bad>\n"
                               "\t<yes>true</yes>\n"
                               "\t<none>\n\t\t<!--invalid data-->\n\t</none>\n"
                               "\t<real>\n\t\t<!--unknown value type-->\n\t\t<!--1.5-->\n"
                               "\t</real>\n"
                               "\t<map>\n\t\t<a>1</a>\n\t\t<b>2</b>\n\t</map>\n"
                               "</report>\n"));
}

QTEST_MAIN(TestXmlTools)
#include "tst_xmltools.moc"
