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
#include "support/Rows.h"

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
        throw Error("unknown " + name);
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

using Make = std::function<Property *(GProject *, const QString &)>;
Q_DECLARE_METATYPE(Make)

template <class P, class T>
static Make make(const T &value)
{
    return [value](GProject *project, const QString &name) { return new P(project, name, value); };
}

class TestPropertyXml : public QObject
{
    Q_OBJECT

private slots:
    void forms_data()
    {
        const Rows<Make, Make, QString> row("made", "empty", "xml");
        row("bool", make<PropertyBool>(true), make<PropertyBool>(false), "<p>true</p>");
        row("string", make<PropertyString>(" a<b>&\" "), make<PropertyString>(QString()),
            "<p> a&lt;b&gt;&amp;&quot; </p>");
        row("unsigned", make<PropertyUnsignedInt>(4000000000U), make<PropertyUnsignedInt>(0U),
            "<p>4000000000</p>");
        row("double", make<PropertyDouble>(0.1), make<PropertyDouble>(0.0), "<p>0.1</p>");
        row("color", make<PropertyColor>(QColor(0xab, 0xcd, 0xef)), make<PropertyColor>(QColor()),
            "<p>#abcdef</p>");
        row("polygon", make<PropertyPolygon>(GPolygonF({{1, 2}})),
            make<PropertyPolygon>(GPolygonF()), "<p><point x=\"1\" y=\"2\"/></p>");
        row("strings", make<PropertyStringList>(QStringList({"a", "b"})),
            make<PropertyStringList>(QStringList()), "<p><string>a</string><string>b</string></p>");
    }

    void forms()
    {
        QFETCH(Make, made);
        QFETCH(Make, empty);
        QFETCH(QString, xml);
        const QScopedPointer<Property> source(made(&m_project, "p"));
        QCOMPARE(write(source.data()), xml);
        const QScopedPointer<Property> target(empty(&m_project, "p"));
        read(target.data(), xml);
        QCOMPARE(write(target.data()), xml);
        QVERIFY(!m_project.undoStack()->canUndo());
    }

    void tolerance_data()
    {
        const Rows<Make, QString, QString> row("empty", "read", "xml");
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
            "<p><x><string>a</string></x><string/></p>",
            "<p><string>a</string><string></string></p>");
    }

    void tolerance()
    {
        QFETCH(Make, empty);
        QFETCH(QString, read);
        const QScopedPointer<Property> property(empty(&m_project, "p"));
        this->read(property.data(), read);
        QTEST(write(property.data()), "xml");
    }

    void filenames()
    {
        PropertyFilename property(&m_project, "p", "/base/a/b");
        QCOMPARE(write(&property), "<p>a/b</p>");
        read(&property, "<p>../x</p>");
        QCOMPARE(property.value().path(), "/x");
        read(&property, "<p>/abs/./y</p>");
        QCOMPARE(property.value().path(), "/abs/y");
        read(&property, "<p>./</p>");
        QCOMPARE(property.value().path(), "/base");
        QCOMPARE(write(&property), "<p>./</p>");
        read(&property, "<p/>");
        QCOMPARE(property.value().path(), QString());
        QCOMPARE(write(&property), "<p/>");
    }

    void binaryValues()
    {
        PropertyByteArray property(&m_project, "p", "data");
        const QString fresh = write(&property);
        QVERIFY(QRegularExpression("^<p datafile=\"[0-9a-f-]{36}\"/>$").match(fresh).hasMatch());
        QVERIFY(property.uniqueId().isEmpty());
        property.setValueWithoutUndoAndAnnounceChange("other");
        read(&property, fresh);
        QCOMPARE(property.value(), "data");
        QCOMPARE(write(&property), fresh);

        const QByteArray inlined = qCompress("inlined").toBase64();
        read(&property, QStringLiteral("<p>%1</p>").arg(QString::fromLatin1(inlined)));
        QCOMPARE(property.value(), "inlined");
        QCOMPARE(write(&property), fresh);
    }

    void missingElementsKeepTheirDefaults()
    {
        PropertyStruct record(&m_project, "record", {});
        record.addProperty(new PropertyInt(&m_project, "a", 5));
        auto *point = record.addProperty(new PropertyPointF(&m_project, "b", QPointF(1, 1)));
        record.addProperty(new PropertyInt(&m_project, "c", 5));
        read(&record, "<record><c>7</c><unknown/><b y='3'/><c>8</c></record>");
        QCOMPARE(write(&record), "<record><a>5</a><b x=\"0\" y=\"3\"/><c>7</c></record>");
        QCOMPARE(point->value(), QPointF(0, 3));
    }

    void unknownListElement()
    {
        PropertyList list(&m_project, "list", false);
        QCOMPARE(messageOf<Error>([&] { read(&list, "<list><number>1</number><x/></list>"); }),
                 "Failed to read 'list' from XML!\n(unknown x)");
        QCOMPARE(write(&list), "<list><number>1</number></list>");
    }

private:
    QString write(Property *property)
    {
        const QDomDocument document = PropertyXMLWriter("/base", &m_storage).writeToXML(property);
        // A DOM has its attributes in a hash; this road gives them one order.
        QByteArray xml;
        QXmlStreamWriter writer(&xml);
        XmlAttributeOrder order;
        XmlTools::serialize(writer, document.documentElement(), &order, {});
        return QString::fromUtf8(xml);
    }

    void read(Property *property, const QString &xml)
    {
        QDomDocument document;
        QVERIFY(document.setContent(xml));
        PropertyXMLReader(&m_project, &m_storage)
            .readFromXML(property, document.documentElement(), "/base");
    }

    GProject m_project{"document", {}};
    Storage m_storage{&m_project};
};

QTEST_MAIN(TestPropertyXml)
#include "tst_propertyxml.moc"
