#include "properties/core/GProject.h"
#include "properties/core/PropertyFactory.h"
#include "properties/core/PropertyReference.h"
#include "properties/core/PropertyValues.h"
#include "properties/descriptions/PropertyDescriptionPreset.h"
#include "properties/descriptions/PropertyDescriptionReference.h"
#include "properties/descriptions/PropertyDescriptionValues.h"
#include "properties/ThrowHelper.h"
#include "properties/undo/GUndoStack.h"
#include "properties/xml/PropertySerializer.h"
#include "properties/xml/PropertyXMLReader.h"
#include "properties/xml/PropertyXMLWriter.h"
#include "support/Rows.h"

#include <QtTest>

/** A document with one type of preset, a collection of these and a reference to one. */
struct Document : public GProject, public PropertyFactory
{
    Document() : GProject("document", {})
    {
        type.addProperty(new PropertyDescriptionInt("width", {}, {}, 3));
        type.addProperty(new PropertyDescriptionString("note", {}, {}));
        reference = addProperty(new PropertyReference(this, &referenceType));
    }

    QSharedPointer<PropertyPreset> preset(const QString &name, int width)
    {
        const auto preset = QSharedPointer<PropertyPreset>::create(this, &type);
        preset->name()->setValueWithoutUndoAndAnnounceChange(name);
        this->width(*preset)->setValueWithoutUndoAndAnnounceChange(width);
        return preset;
    }

    static PropertyInt *width(const PropertyPreset &preset)
    {
        return preset.data()->property<PropertyInt>("width");
    }

    Property *createProperty(const QString &name, const Property *) const override
    {
        auto *self = static_cast<GProject *>(project());
        if (name == QLatin1String("stitch_list"))
            return new PropertyPresetCollection(self, &type);
        if (name == QLatin1String("preset"))
            return new PropertyPreset(self, &type);
        throw Error("unknown " + name);
    }

    PropertyEnumElement createEnumElem(const PropertyDescriptionEnum *,
                                       const QString &) const override
    {
        return {};
    }

    PropertyPreset *createPreset(const QString &) const override
    {
        return new PropertyPreset(project(), &type);
    }

    PropertyDescriptionPreset type{"stitch", {}};
    PropertyDescriptionReference referenceType{&type, "current", {}, {}};
    PropertyReference *reference = nullptr;
};

class TestPresets : public QObject
{
    Q_OBJECT

private slots:
    void referenceChecksTheType()
    {
        Document document;
        QCOMPARE(Document::width(*document.reference->value())->value(), 3);
        QCOMPARE(messageOf<Error>([&] { document.reference->setValue({}, {}); }),
                 "reference property may not be set to NULL");
        PropertyDescriptionPreset other("other", {});
        const auto stranger = QSharedPointer<PropertyPreset>::create(&document, &other);
        QCOMPARE(messageOf<ErrorTypeConflict>([&] { document.reference->setValue(stranger, {}); }),
                 "cannot assign type 'other' to reference property of type 'stitch'");
        const auto unnamed = document.preset({}, 9);
        document.reference->setValue(unnamed, {});
        QCOMPARE(document.reference->value(), unnamed);
        document.undoStack()->undo();
        QVERIFY(document.reference->value() != unnamed);
    }

    void collections()
    {
        Document document;
        PropertyPresetCollection collection(&document, &document.type);
        QCOMPARE(collection.propertyName(), "stitch_list");
        const auto add = [&](const QString &name) {
            auto *preset = new PropertyPreset(&document, &document.type);
            preset->name()->setValueWithoutUndoAndAnnounceChange(name);
            collection.add(preset, {});
        };
        add("satin");
        QCOMPARE(document.undoStack()->undoText(), "Add stitch satin");
        QCOMPARE(messageOf<ErrorAlreadyExists>([&] { add("satin"); }),
                 "property preset 'satin' already exists in 'stitch'");
        QCOMPARE(messageOf<Error>([&] { add({}); }),
                 "cannot add unnamed property preset to collection 'stitch'");
        QCOMPARE(messageOf<ErrorDoesNotExist>([&] { collection.preset("fill"); }),
                 "property preset 'fill' not found in 'stitch'");
        add("fill");
        const auto satin = collection.preset("satin");
        collection.remove("satin", {});
        QCOMPARE(document.undoStack()->undoText(), "Remove stitch satin");
        QVERIFY(!collection.contains("satin"));
        document.undoStack()->undo();
        QCOMPARE(collection.sharedAt(0), satin);
        document.undoStack()->clear();
    }

    void oneCollectionOfEachType()
    {
        Document document;
        auto *collections = document.presetCollections();
        auto *first = new PropertyPresetCollection(&document, &document.type);
        collections->addWithoutUndo(first);
        auto *second = new PropertyPresetCollection(&document, &document.type);
        collections->addWithoutUndo(second);
        QCOMPARE(collections->count(), 1);
        QCOMPARE(collections->at(0), second);

        const QString message = "preset collection of type 'stitch' already exists";
        QCOMPARE(messageOf<ErrorAlreadyExists>([&] { collections->addWithoutUndo(second); }),
                 message);
        second->addSharedWithoutUndo(document.preset("satin", 1));
        QCOMPARE(messageOf<ErrorAlreadyExists>([&] {
                     collections->add(new PropertyPresetCollection(&document, &document.type), {});
                 }),
                 message);
        QCOMPARE(collections->at(0), second);
    }

    void roundTrip_data()
    {
        const Rows<QString> row("referenced");
        row("shared preset", "satin");
        row("preset of its own", {});
    }

    void roundTrip()
    {
        QFETCH(QString, referenced);
        Document source;
        auto *collection = new PropertyPresetCollection(&source, &source.type);
        source.presetCollections()->addWithoutUndo(collection);
        collection->addSharedWithoutUndo(source.preset("satin", 7));
        source.reference->setValueWithoutUndoAndAnnounceChange(
            referenced.isEmpty() ? source.preset({}, 11) : collection->preset(referenced));
        PropertySerializer serializer;
        PropertyXMLWriter writer("/", &serializer);
        const QString xml = writer.writeToXML(&source).toString(-1);

        Document target;
        QDomDocument document;
        QVERIFY(document.setContent(xml));
        PropertyXMLReader(&target, &target).readFromXML(&target, document.documentElement(), "/");
        QCOMPARE(target.presetCollectionByName("stitch")->presetNames(), QStringList("satin"));
        QCOMPARE(Document::width(*target.reference->value())->value(),
                 referenced.isEmpty() ? 11 : 7);
        QCOMPARE(target.reference->value()->isSharedGroup(), !referenced.isEmpty());
        QCOMPARE(writer.writeToXML(&target).toString(-1), xml);
    }

    void unknownReferenceFails()
    {
        Document target;
        QDomDocument document;
        document.setContent(QByteArray("<document><current type='stitch' name='x'/></document>"));
        QCOMPARE(messageOf<ErrorDoesNotExist>([&] {
                     PropertyXMLReader(&target, &target)
                         .readFromXML(&target, document.documentElement(), "/");
                 }),
                 "preset collection of type 'stitch' does not exist");
    }
};

QTEST_MAIN(TestPresets)
#include "tst_presets.moc"
