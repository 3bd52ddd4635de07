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

#include <limits>
#include <memory>
#include <QtTest>

class TestProperties : public QObject
{
    Q_OBJECT

private slots:
    void equalValueIsNoEdit();
    void equality();
    void structFailures();
    void structFromDescriptions();
    void enumChecksMembership();
    void byteArrayDelta_data();
    void byteArrayDelta();

private:
    GProject m_project{QStringLiteral("document"), {}};
};

template <class P, class T>
static bool isEdit(GProject *project, const T &from, const T &to)
{
    P property(project, QStringLiteral("p"), from);
    property.setValue(to, {});
    const bool edited = project->undoStack()->canUndo();
    project->undoStack()->clear();
    return edited;
}

void TestProperties::equalValueIsNoEdit()
{
    PropertyString property(&m_project, QStringLiteral("s"), QStringLiteral("x"));
    RecordingObserver observer;
    property.registerObserver(&observer);
    property.setValue(QStringLiteral("x"), QStringLiteral("edit"));
    QVERIFY(observer.heard.isEmpty());
    QVERIFY(!m_project.undoStack()->canUndo());
    property.setValue(QStringLiteral("y"), QStringLiteral("edit"));
    QCOMPARE(observer.heard.count(), 1);
    QCOMPARE(property.value(), QStringLiteral("y"));
    m_project.undoStack()->undo();
    QCOMPARE(observer.heard.count(), 2);
    QCOMPARE(property.value(), QStringLiteral("x"));
    m_project.undoStack()->clear();
    property.setValueWithoutUndoAndAnnounceChange(QStringLiteral("x"));
    QCOMPARE(observer.heard.count(), 3);
    QVERIFY(!m_project.undoStack()->canUndo());
}

void TestProperties::equality()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(isEdit<PropertyDouble>(&m_project, nan, nan));
    QVERIFY(!isEdit<PropertyDouble>(&m_project, 0.1, 0.1));
    QVERIFY(isEdit<PropertyDouble>(&m_project, 1.0, 1.0 + 1e-15));
    QVERIFY(!isEdit<PropertyPointF>(&m_project, QPointF(1, 1), QPointF(1 + 1e-15, 1)));
    QVERIFY(
        isEdit<PropertyVector3D>(&m_project, QVector3D(1, 1, 1), QVector3D(1, 1, 1.0000001192F)));
    QVERIFY(isEdit<PropertyColor>(&m_project, QColor(), QColor(Qt::black)));
    QVERIFY(isEdit<PropertyCircle>(&m_project, GCircle{{1, 1}, 2}, GCircle{{1, 1}, 2 + 1e-15}));
    QVERIFY(!isEdit<PropertyCircle>(&m_project, GCircle{{1, 1}, 2}, GCircle{{1 + 1e-15, 1}, 2}));
    QVERIFY(isEdit<PropertyPolygon>(&m_project, GPolygonF(), GPolygonF({{0, 0}})));
}

void TestProperties::structFailures()
{
    PropertyStruct record(&m_project, QStringLiteral("record"), {});
    record.addProperty(new PropertyString(&m_project, QStringLiteral("x"), {}));
    QCOMPARE(
        messageOf<ErrorDoesNotExist>([&] { record.property<PropertyInt>(QStringLiteral("y")); }),
        QStringLiteral("requested undefined property 'y'"));
    QCOMPARE(
        messageOf<ErrorTypeConflict>([&] { record.property<PropertyInt>(QStringLiteral("x")); }),
        QStringLiteral("requested property 'x' has wrong type"));
    const auto addAgain = [&] {
        record.addProperty(new PropertyInt(&m_project, QStringLiteral("x"), 1));
    };
    QCOMPARE(messageOf<ErrorAlreadyExists>(addAgain),
             QStringLiteral("property 'x' already exists in struct 'record'"));
    QCOMPARE(record.propertyNames(), QStringList(QStringLiteral("x")));
}

void TestProperties::structFromDescriptions()
{
    PropertyDescriptionInt number(QStringLiteral("n"), {}, {}, 5);
    PropertyDescriptionSizeF size(QStringLiteral("s"), {}, {}, QSizeF(1, 2));
    PropertyDescriptionFilename path(QStringLiteral("p"), {}, {}, QStringLiteral("/a"));
    PropertyDescriptionEnum choice(QStringLiteral("e"), {}, {},
                                   {QStringLiteral("k"), QStringLiteral("K")});
    PropertyStruct record(&m_project, QStringLiteral("record"), {&number, &size, &path, &choice});
    QCOMPARE(record.propertyNames().join(QString()), QStringLiteral("nspe"));
    QCOMPARE(record.property<PropertyInt>(QStringLiteral("n"))->value(), 5);
    QCOMPARE(record.property<PropertySizeF>(QStringLiteral("s"))->value(), QSizeF(1, 2));
    QCOMPARE(record.property<PropertyFilename>(QStringLiteral("p"))->value().path(),
             QStringLiteral("/a"));
    QCOMPARE(record.property<PropertyEnum>(QStringLiteral("e"))->value().elementName,
             QStringLiteral("k"));

    PropertyDescriptionPreset preset(QStringLiteral("type"), {});
    QCOMPARE(
        messageOf<Error>([&] { PropertyStruct(&m_project, QStringLiteral("bad"), {&preset}); }),
        QStringLiteral("PropertyStruct may not contain a preset property"));
}

void TestProperties::enumChecksMembership()
{
    PropertyDescriptionEnum description(QStringLiteral("unit"), {}, {},
                                        {QStringLiteral("mm"), QStringLiteral("Millimetre")});
    description.addValue(QStringLiteral("in"), QStringLiteral("Inch"));
    PropertyEnum property(&m_project, QStringLiteral("unit"), &description);
    property.setValue(description.elementByName(QStringLiteral("in")), {});
    QCOMPARE(property.value().elementName, QStringLiteral("in"));

    const PropertyEnumElement stranger(QStringLiteral("ft"), QStringLiteral("Foot"));
    property.setValueWithoutUndoAndAnnounceChange(stranger);
    QCOMPARE(messageOf<ErrorTypeConflict>([&] { property.setValue(stranger, {}); }),
             QStringLiteral("ft (Foot) is not an element of enum unit"));
    m_project.undoStack()->clear();
    QCOMPARE(messageOf<ErrorDoesNotExist>(
                 [&] { description.setDefaultValueByName(QStringLiteral("ft")); }),
             QStringLiteral("Enumeration type 'unit' does not have 'ft' element"));
    QVERIFY(PropertyDescriptionEnum(QStringLiteral("none"), {}, {}, {}).elements().isEmpty());
}

void TestProperties::byteArrayDelta_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::newRow("longer") << QByteArray("abc") << QByteArray("\xff\x01longer");
    QTest::newRow("shorter") << QByteArray("a long value") << QByteArray("zz");
    QTest::newRow("from nothing") << QByteArray() << QByteArray("x\0y", 3);
    QTest::newRow("to nothing") << QByteArray("x") << QByteArray();
}

void TestProperties::byteArrayDelta()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    PropertyByteArray property(&m_project, QStringLiteral("b"), from);
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

QTEST_MAIN(TestProperties)
#include "tst_properties.moc"
