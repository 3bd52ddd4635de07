#include "properties/core/GProject.h"
#include "properties/core/PropertyByteArray.h"
#include "properties/core/PropertyColor.h"
#include "properties/core/PropertyEnum.h"
#include "properties/core/PropertyFilename.h"
#include "properties/core/PropertyGeometry.h"
#include "properties/core/PropertyValues.h"
#include "properties/descriptions/PropertyDescriptionEnum.h"
#include "properties/descriptions/PropertyDescriptionPreset.h"
#include "properties/descriptions/PropertyDescriptionValues.h"
#include "properties/RecordingObserver.h"
#include "properties/ThrowHelper.h"
#include "properties/undo/GUndoStack.h"
#include "support/Rows.h"

#include <limits>
#include <memory>
#include <QtTest>

template <class P, class T>
static bool isEdit(GProject *project, const T &from, const T &to)
{
    P property(project, "p", from);
    property.setValue(to, {});
    const bool edited = project->undoStack()->canUndo();
    project->undoStack()->clear();
    return edited;
}

class TestProperties : public QObject
{
    Q_OBJECT

private slots:
    void equalValueIsNoEdit()
    {
        PropertyString property(&m_project, "s", "x");
        RecordingObserver observer;
        property.registerObserver(&observer);
        property.setValue("x", "edit");
        QVERIFY(observer.heard.isEmpty());
        QVERIFY(!m_project.undoStack()->canUndo());
        property.setValue("y", "edit");
        QCOMPARE(observer.heard.count(), 1);
        QCOMPARE(property.value(), "y");
        m_project.undoStack()->undo();
        QCOMPARE(observer.heard.count(), 2);
        QCOMPARE(property.value(), "x");
        m_project.undoStack()->clear();
        property.setValueWithoutUndoAndAnnounceChange("x");
        QCOMPARE(observer.heard.count(), 3);
        QVERIFY(!m_project.undoStack()->canUndo());
    }

    void equality()
    {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        QVERIFY(isEdit<PropertyDouble>(&m_project, nan, nan));
        QVERIFY(!isEdit<PropertyDouble>(&m_project, 0.1, 0.1));
        QVERIFY(isEdit<PropertyDouble>(&m_project, 1.0, 1.0 + 1e-15));
        QVERIFY(!isEdit<PropertyPointF>(&m_project, QPointF(1, 1), QPointF(1 + 1e-15, 1)));
        QVERIFY(isEdit<PropertyVector3D>(&m_project, QVector3D(1, 1, 1),
                                         QVector3D(1, 1, 1.0000001192F)));
        QVERIFY(isEdit<PropertyColor>(&m_project, QColor(), QColor(Qt::black)));
        QVERIFY(isEdit<PropertyCircle>(&m_project, GCircle{{1, 1}, 2}, GCircle{{1, 1}, 2 + 1e-15}));
        QVERIFY(
            !isEdit<PropertyCircle>(&m_project, GCircle{{1, 1}, 2}, GCircle{{1 + 1e-15, 1}, 2}));
        QVERIFY(isEdit<PropertyPolygon>(&m_project, GPolygonF(), GPolygonF({{0, 0}})));
    }

    void structFailures()
    {
        PropertyStruct record(&m_project, "record", {});
        record.addProperty(new PropertyString(&m_project, "x", {}));
        QCOMPARE(messageOf<ErrorDoesNotExist>([&] { record.property<PropertyInt>("y"); }),
                 "requested undefined property 'y'");
        QCOMPARE(messageOf<ErrorTypeConflict>([&] { record.property<PropertyInt>("x"); }),
                 "requested property 'x' has wrong type");
        const auto addAgain = [&] { record.addProperty(new PropertyInt(&m_project, "x", 1)); };
        QCOMPARE(messageOf<ErrorAlreadyExists>(addAgain),
                 "property 'x' already exists in struct 'record'");
        QCOMPARE(record.propertyNames(), QStringList("x"));
    }

    void structFromDescriptions()
    {
        PropertyDescriptionInt number("n", {}, {}, 5);
        PropertyDescriptionSizeF size("s", {}, {}, QSizeF(1, 2));
        PropertyDescriptionFilename path("p", {}, {}, QStringLiteral("/a"));
        PropertyDescriptionEnum choice("e", {}, {}, {"k", "K"});
        PropertyStruct record(&m_project, "record", {&number, &size, &path, &choice});
        QCOMPARE(record.propertyNames().join(QString()), "nspe");
        QCOMPARE(record.property<PropertyInt>("n")->value(), 5);
        QCOMPARE(record.property<PropertySizeF>("s")->value(), QSizeF(1, 2));
        QCOMPARE(record.property<PropertyFilename>("p")->value().path(), "/a");
        QCOMPARE(record.property<PropertyEnum>("e")->value().elementName, "k");

        PropertyDescriptionPreset preset("type", {});
        QCOMPARE(messageOf<Error>([&] { PropertyStruct(&m_project, "bad", {&preset}); }),
                 "PropertyStruct may not contain a preset property");
    }

    void enumChecksMembership()
    {
        PropertyDescriptionEnum description("unit", {}, {}, {"mm", "Millimetre"});
        description.addValue("in", "Inch");
        PropertyEnum property(&m_project, "unit", &description);
        property.setValue(description.elementByName("in"), {});
        QCOMPARE(property.value().elementName, "in");

        const PropertyEnumElement stranger("ft", "Foot");
        property.setValueWithoutUndoAndAnnounceChange(stranger);
        QCOMPARE(messageOf<ErrorTypeConflict>([&] { property.setValue(stranger, {}); }),
                 "ft (Foot) is not an element of enum unit");
        m_project.undoStack()->clear();
        QCOMPARE(messageOf<ErrorDoesNotExist>([&] { description.setDefaultValueByName("ft"); }),
                 "Enumeration type 'unit' does not have 'ft' element");
        QVERIFY(PropertyDescriptionEnum("none", {}, {}, {}).elements().isEmpty());
    }

    void byteArrayDelta_data()
    {
        const Rows<QByteArray, QByteArray> row("from", "to");
        row("longer", "abc", "\xff\x01longer");
        row("shorter", "a long value", "zz");
        row("from nothing", {}, QByteArray("x\0y", 3));
        row("to nothing", "x", {});
    }

    void byteArrayDelta()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        PropertyByteArray property(&m_project, "b", from);
        RecordingObserver observer;
        property.registerObserver(&observer);
        property.applyDelta(PropertyByteArray::calculateDelta(from, to));
        QCOMPARE(property.value(), to);
        QCOMPARE(observer.heard.count(), 1);
        QVERIFY(!m_project.undoStack()->canUndo());
        property.setValue("2", {});
        property.setValue("3", {});
        QCOMPARE(m_project.undoStack()->count(), 2);
        m_project.undoStack()->clear();
    }

private:
    GProject m_project{"document", {}};
};

QTEST_MAIN(TestProperties)
#include "tst_properties.moc"
