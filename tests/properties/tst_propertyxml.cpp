#include "properties/core/GProject.h"
#include "properties/core/PropertyByteArray.h"
#include "properties/core/PropertyColor.h"
#include "properties/core/PropertyEnum.h"
#include "properties/core/PropertyFactory.h"
#include "properties/core/PropertyFilename.h"
#include "properties/core/PropertyGeometry.h"
#include "properties/core/PropertyValues.h"
#include "properties/descriptions/PropertyDescriptionEnum.h"
#include "properties/ThrowHelper.h"
#include "properties/xml/PropertySerializer.h"
#include "properties/xml/PropertyXMLReader.h"
#include "properties/xml/PropertyXMLWriter.h"
#include "properties/xml/XmlAttributeOrder.h"
#include "properties/xml/XmlTools.h"

#include <QtTest>

/** Keeps binary values in memory and knows one element of lists. */
class Storage : public PropertySerializer, public PropertyFactory
{
public:
    explicit Storage(GProject *project) : m_project(project) {}

    void saveBinaryLargeObject(const QString &id, const QByteArray &data) override
    {
        blobs.insert(id, data);
    }
    QByteArray loadBinaryLargeObject(const QString &id) const override { return blobs.value(id); }
    Property *createProperty(const QString &name, const Property *) const override
    {
        if (name == QLatin1String("number"))
            return new PropertyInt(m_project, name, 0);
        throw Error(QStringLiteral("unknown ") + name);
    }
    PropertyEnumElement createEnumElem(const PropertyDescriptionEnum *,
                                       const QString &name) const override
    {
        return {name, name.toUpper()};
    }

    QHash<QString, QByteArray> blobs;

private:
    GProject *m_project;
};

class TestPropertyXml : public QObject
{
    Q_OBJECT

private slots:
    void forms_data();
    void forms();
    void tolerance_data();
    void tolerance();
    void filenames();
    void binaryValues();
    void missingElementsKeepTheirDefaults();
    void unknownListElement();

private:
    QString write(Property *property);
    void read(Property *property, const QString &xml);

    GProject m_project{QStringLiteral("document"), {}};
    Storage m_storage{&m_project};
};

QString TestPropertyXml::write(Property *property)
{
    const QDomDocument document =
        PropertyXMLWriter(QStringLiteral("/base"), &m_storage).writeToXML(property);
    // A DOM has its attributes in a hash; this road gives them one order.
    QByteArray xml;
    QXmlStreamWriter writer(&xml);
    XmlAttributeOrder order;
    XmlTools::serialize(writer, document.documentElement(), &order, {});
    return QString::fromUtf8(xml);
}

void TestPropertyXml::read(Property *property, const QString &xml)
{
    QDomDocument document;
    QVERIFY(document.setContent(xml));
    PropertyXMLReader(&m_project, &m_storage)
        .readFromXML(property, document.documentElement(), QStringLiteral("/base"));
}

using Make = std::function<Property *(GProject *, const QString &)>;
Q_DECLARE_METATYPE(Make)

template <class P, class T>
static Make make(const T &value)
{
    return [value](GProject *project, const QString &name) { return new P(project, name, value); };
}

void TestPropertyXml::forms_data()
{
    QTest::addColumn<Make>("made");
    QTest::addColumn<Make>("empty");
    QTest::addColumn<QString>("xml");
    const auto row = [](const char *name, const Make &made, const Make &empty, const char *xml) {
        QTest::newRow(name) << made << empty << QString::fromLatin1(xml);
    };
    row("bool", make<PropertyBool>(true), make<PropertyBool>(false), "<p>true</p>");
    row("string", make<PropertyString>(QStringLiteral(" a<b>&\" ")),
        make<PropertyString>(QString()), "<p> a&lt;b&gt;&amp;&quot; </p>");
    row("unsigned", make<PropertyUnsignedInt>(4000000000U), make<PropertyUnsignedInt>(0U),
        "<p>4000000000</p>");
    row("double", make<PropertyDouble>(0.1), make<PropertyDouble>(0.0), "<p>0.1</p>");
    row("color", make<PropertyColor>(QColor(0xab, 0xcd, 0xef)), make<PropertyColor>(QColor()),
        "<p>#abcdef</p>");
    row("polygon", make<PropertyPolygon>(GPolygonF({{1, 2}})), make<PropertyPolygon>(GPolygonF()),
        "<p><point x=\"1\" y=\"2\"/></p>");
    row("strings",
        make<PropertyStringList>(QStringList({QStringLiteral("a"), QStringLiteral("b")})),
        make<PropertyStringList>(QStringList()), "<p><string>a</string><string>b</string></p>");
}

void TestPropertyXml::forms()
{
    QFETCH(Make, made);
    QFETCH(Make, empty);
    QFETCH(QString, xml);
    const QScopedPointer<Property> source(made(&m_project, QStringLiteral("p")));
    QCOMPARE(write(source.data()), xml);
    const QScopedPointer<Property> target(empty(&m_project, QStringLiteral("p")));
    read(target.data(), xml);
    QCOMPARE(write(target.data()), xml);
    QVERIFY(!m_project.undoStack()->canUndo());
}

void TestPropertyXml::tolerance_data()
{
    QTest::addColumn<Make>("empty");
    QTest::addColumn<QString>("read");
    QTest::addColumn<QString>("xml");
    const auto row = [](const char *name, const Make &empty, const char *read, const char *xml) {
        QTest::newRow(name) << empty << QString::fromLatin1(read) << QString::fromLatin1(xml);
    };
    row("blanks", make<PropertyBool>(false), "<p> true\n</p>", "<p>true</p>");
    row("capital", make<PropertyBool>(true), "<p>True</p>", "<p>false</p>");
    row("huge number", make<PropertyInt>(5), "<p>99999999999</p>", "<p>0</p>");
    row("negative unsigned", make<PropertyUnsignedInt>(5U), "<p>-1</p>", "<p>0</p>");
    row("no double", make<PropertyDouble>(5.0), "<p>one</p>", "<p>0</p>");
    row("no colour", make<PropertyColor>(QColor(Qt::red)), "<p>x</p>", "<p>#000000</p>");
    row("alpha", make<PropertyColor>(QColor(Qt::red)), "<p>#80123456</p>", "<p>#123456</p>");
    row("entities", make<PropertyString>(QString()), "<p>&lt;&#13;<![CDATA[&]]></p>",
        "<p>&lt;&#13;&amp;</p>");
    row("nested strings", make<PropertyStringList>(QStringList()),
        "<p><x><string>a</string></x><string/></p>", "<p><string>a</string><string></string></p>");
}

void TestPropertyXml::tolerance()
{
    QFETCH(Make, empty);
    QFETCH(QString, read);
    QFETCH(QString, xml);
    const QScopedPointer<Property> property(empty(&m_project, QStringLiteral("p")));
    this->read(property.data(), read);
    QCOMPARE(write(property.data()), xml);
}

void TestPropertyXml::filenames()
{
    PropertyFilename property(&m_project, QStringLiteral("p"), QStringLiteral("/base/a/b"));
    QCOMPARE(write(&property), QStringLiteral("<p>a/b</p>"));
    read(&property, QStringLiteral("<p>../x</p>"));
    QCOMPARE(property.value().path(), QStringLiteral("/x"));
    read(&property, QStringLiteral("<p>/abs/./y</p>"));
    QCOMPARE(property.value().path(), QStringLiteral("/abs/y"));
    read(&property, QStringLiteral("<p>./</p>"));
    QCOMPARE(property.value().path(), QStringLiteral("/base"));
    QCOMPARE(write(&property), QStringLiteral("<p>./</p>"));
    read(&property, QStringLiteral("<p/>"));
    QCOMPARE(property.value().path(), QString());
    QCOMPARE(write(&property), QStringLiteral("<p/>"));
}

void TestPropertyXml::binaryValues()
{
    PropertyByteArray property(&m_project, QStringLiteral("p"), "data");
    const QString fresh = write(&property);
    QVERIFY(QRegularExpression(QStringLiteral("^<p datafile=\"[0-9a-f-]{36}\"/>$"))
                .match(fresh)
                .hasMatch());
    QVERIFY(property.uniqueId().isEmpty());
    property.setValueWithoutUndoAndAnnounceChange("other");
    read(&property, fresh);
    QCOMPARE(property.value(), QByteArray("data"));
    QCOMPARE(write(&property), fresh);

    const QByteArray inlined = qCompress("inlined").toBase64();
    read(&property, QStringLiteral("<p>%1</p>").arg(QString::fromLatin1(inlined)));
    QCOMPARE(property.value(), QByteArray("inlined"));
    QCOMPARE(write(&property), fresh);
}

void TestPropertyXml::missingElementsKeepTheirDefaults()
{
    PropertyStruct record(&m_project, QStringLiteral("record"), {});
    record.addProperty(new PropertyInt(&m_project, QStringLiteral("a"), 5));
    auto *point =
        record.addProperty(new PropertyPointF(&m_project, QStringLiteral("b"), QPointF(1, 1)));
    record.addProperty(new PropertyInt(&m_project, QStringLiteral("c"), 5));
    read(&record, QStringLiteral("<record><c>7</c><unknown/><b y='3'/><c>8</c></record>"));
    QCOMPARE(write(&record),
             QStringLiteral("<record><a>5</a><b x=\"0\" y=\"3\"/><c>7</c></record>"));
    QCOMPARE(point->value(), QPointF(0, 3));
}

void TestPropertyXml::unknownListElement()
{
    PropertyList list(&m_project, QStringLiteral("list"), false);
    QCOMPARE(messageOf<Error>(
                 [&] { read(&list, QStringLiteral("<list><number>1</number><x/></list>")); }),
             QStringLiteral("Failed to read 'list' from XML!\n(unknown x)"));
    QCOMPARE(write(&list), QStringLiteral("<list><number>1</number></list>"));
}

QTEST_MAIN(TestPropertyXml)
#include "tst_propertyxml.moc"
