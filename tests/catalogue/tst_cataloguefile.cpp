#include "base/files/FileTools.h"
#include "catalogue/records/CatalogueErrors.h"
#include "catalogue/records/DataModelReader.h"
#include "catalogue/records/DataModelWriter.h"
#include "catalogue/records/Project.h"
#include "properties/descriptions/PropertyDescriptionPreset.h"
#include "properties/descriptions/PropertyDescriptionValues.h"
#include "properties/RecordingObserver.h"
#include "properties/ThrowHelper.h"
#include "support/Rows.h"

#include <QRegularExpression>
#include <QtTest>

/** Reads a catalogue that has a type of preset. */
class PresetReader : public DataModelReader
{
public:
    PresetReader(Project *project, const PropertyDescriptionPreset *type)
        : m_project(project), m_type(type)
    {
    }

    Property *createProperty(const QString &tag, const Property *parent) const override
    {
        if (tag == QLatin1String("hoop_list"))
            return new PropertyPresetCollection(m_project, m_type);
        if (tag == QLatin1String("preset"))
            return new PropertyPreset(m_project, m_type);
        return DataModelReader::createProperty(tag, parent);
    }

private:
    Project *m_project;
    const PropertyDescriptionPreset *m_type;
};

class TestCatalogueFile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dir.reset(new QTemporaryDir);
        m_project.reset(new Project);
    }

    void form()
    {
        const auto file = addFile("/home/user/Designs/rose.pes");
        file->setFileSize(48213);
        file->setModificationDate(1609459200);
        file->setContentHash(QByteArray::fromHex("0123456789abcdef0123456789abcdef"));
        file->setName("rose");
        file->setDesignSize({94.5, 120.25});
        file->setStitchCount(10311);
        const auto thread = QSharedPointer<Thread>::create(m_project.data());
        thread->setColor(QColor(0xed, 0x17, 0x1f));
        thread->setColorName("Red & gold");
        file->setThreads({thread});
        file->setTags({"flowers", "red"});
        m_project->setSmartFolders({"/home/user/Designs"}, {});
        m_project->setAllTags({"flowers", "red"});
        m_project->save(path());
        QCOMPARE(QString::fromUtf8(FileTools::readAll(path())),
                 QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>
<hoopline_organizer version="1.0">
    <preset_collections/>
    <smart_folders>
        <string>/home/user/Designs</string>
    </smart_folders>
    <files>
        <file>
            <absolute_file_path>/home/user/Designs/rose.pes</absolute_file_path>
            <file_size>48213</file_size>
            <modification_date>1609459200</modification_date>
            <content_hash>0123456789abcdef0123456789abcdef</content_hash>
            <name>rose</name>
            <design_size h="120.25" w="94.5"/>
            <stitch_count>10311</stitch_count>
            <threads>
                <thread>
                    <color>#ed171f</color>
                    <color_name>Red &amp; gold</color_name>
                    <chart/>
                </thread>
            </threads>
            <notes/>
            <tags>
                <string>flowers</string>
                <string>red</string>
            </tags>
            <is_favorite>false</is_favorite>
        </file>
    </files>
    <all_tags>
        <string>flowers</string>
        <string>red</string>
    </all_tags>
</hoopline_organizer>
)"));
    }

    void everythingSurvives_data()
    {
        const Rows<QString> row("text");
        row("markup", "\"a\" 'b' & <c> ]]> &lt; &#13;");
        row("newlines", "\nfirst\r\nsecond\rthird\n\n");
        row("blanks around", "  \t a  b \t ");
        row("blanks only", " \t\n ");
        row("emoji and scripts", "\U0001F9F5 \u05e9\u05dc\u05d5\u05dd \u2028\u0085");
        row("100 KB", QStringLiteral("0123456789 & <\n").repeated(7000));
        row("what XML can't hold", QStringLiteral("a\u0001\u000b00") + QChar(0) + QChar(0xd800) +
                                       QChar('c') + QChar(0xffff) + QChar(0xdc00));
        row("what stands for that", "\uf8fe0001 \uf8fe \uf8fexyz0");
    }

    void everythingSurvives()
    {
        QFETCH(QString, text);
        for (int i = 0; i < 20; ++i) {
            const auto file = addFile(QStringLiteral("/%1 %2").arg(i).arg(text));
            file->setName(text);
            file->setDesignSize({i / 7.0, i * 1.1 + 0.1});
            file->setNotes(text);
            file->setTags({text, "b"});
            file->setFavorite(true);
            file->setThreads({QSharedPointer<Thread>::create(m_project.data())});
        }
        m_project->setSmartFolders({"/" + text}, {});
        m_project->setAllTags({text, "b"});
        m_project->save(path());
        const QByteArray saved = FileTools::readAll(path());

        Project other;
        other.load(path());
        QCOMPARE(other.smartFolders(), QStringList("/" + text));
        QCOMPARE(other.allTags().count(), 2);
        QVERIFY(other.allTags().contains(text));
        QCOMPARE(other.files().count(), 20);
        const QSharedPointer<IFile> file = other.files().first();
        QCOMPARE(file->absoluteFilePath(), "/0 " + text);
        QCOMPARE(file->name(), text);
        QCOMPARE(file->notes(), text);
        QCOMPARE(file->tags(), QStringList({text, "b"}));
        QVERIFY(file->isFavorite());
        QVERIFY(!other.undoStack()->canUndo());
        other.save(path());
        QCOMPARE(FileTools::readAll(path()), saved);
    }

    void versions_data()
    {
        const Rows<QByteArray, bool> row("version", "loads");
        row("1.0", "version='1.0'", true);
        row("0.9", "version='0.9'", true);
        row("none", {}, true);
        row("2.0", "version='2.0'", false);
        row("1.0.1", "version='1.0.1'", false);
        // May be well-formed in a way that is not known yet.
        row("2.0, malformed", "version='2.0'><new></old", false);
    }

    void versions()
    {
        QFETCH(QByteArray, version);
        QFETCH(bool, loads);
        m_project->setAllTags({"kept"});
        const QString message =
            errorOfLoad("<hoopline_organizer " + version + "></hoopline_organizer>");
        QCOMPARE(m_project->allTags().isEmpty(), loads);
        QCOMPARE(message, loads
                              ? QStringLiteral("nothing thrown")
                              : QStringLiteral("This file cannot be loaded because it was created "
                                               "with a newer version of Hoopline organizer"));
    }

    void failuresLeaveTheProject_data()
    {
        const Rows<QByteArray, QString> row("xml", "message");
        row("other root", "<other/>", "'%1' is not a Hoopline Organizer project file");
        row("malformed", "<hoopline_organizer>\n<files>\n</hoopline_organizer>",
            "XML parser error: * (line 3)");
        row("cut off", "<hoopline_organizer><files><file>", "XML parser error: * (line 1)");
        row("empty", {}, "XML parser error: * (line *)");
        row("trailing rubbish", "<hoopline_organizer/>\nx", "XML parser error: * (line 2)");

        const auto inNotes = [](const QByteArray &notes) {
            return "<hoopline_organizer><files><file><notes>" + notes +
                   "</notes></file></files></hoopline_organizer>";
        };
        const QByteArray deep =
            QByteArray("<a>").repeated(500000) + QByteArray("</a>").repeated(500000);
        row("deep", inNotes(deep), "XML parser error: * (line 1)");
        row("deep outside the records", "<hoopline_organizer>" + deep + "</hoopline_organizer>",
            "XML parser error: *");
        QByteArray entities = "<!ENTITY e0 'lol'>";
        for (int i = 1; i < 20; ++i)
            entities += "<!ENTITY e" + QByteArray::number(i) + " '" +
                        ("&e" + QByteArray::number(i - 1) + ";").repeated(10) + "'>";
        row("entities", "<!DOCTYPE hoopline_organizer [" + entities + "]>" + inNotes("&e19;"),
            "XML parser error: *");
        row("no utf-8", inNotes(QByteArray("\x80\xfe\xff\x01").repeated(100)),
            "XML parser error: *");
    }

    void failuresLeaveTheProject()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QString, message);
        m_project->setAllTags({"kept"});
        const QString told = errorOfLoad(xml);
        const QString pattern =
            QRegularExpression::escape(message.replace("%1", path())).replace("\\*", ".*");
        const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern));
        QVERIFY2(whole.match(told).hasMatch(), qPrintable(told));
        QCOMPARE(m_project->allTags(), QStringList("kept"));
    }

    void missingPlaces()
    {
        QCOMPARE(messageOf<ErrorDoesNotExist>([this] { m_project->load(path()); }),
                 QStringLiteral("Failed to open file '%1'").arg(path()));
        FileTools::writeAll(m_dir->filePath("blocked"), "x");
        const QString target = m_dir->filePath("blocked/catalogue.xml");
        const QString message = messageOf<Error>([&] { m_project->save(target); });
        QVERIFY2(message.startsWith("Failed to write " + target + ": "), qPrintable(message));
    }

    void onlyAMissingFileIsMissing()
    {
        QVERIFY(QDir().mkpath(m_dir->filePath("folder")));
        QVERIFY(QFile::link("nowhere", m_dir->filePath("dangling")));
        QVERIFY(QFile::link("circle", m_dir->filePath("circle")));
        FileTools::writeAll(m_dir->filePath("file"), "x");
        for (const char *name : {"folder", "dangling", "circle", "file/below"})
            QVERIFY_EXCEPTION_THROWN(m_project->load(m_dir->filePath(name)),
                                     CatalogueUnusableError);
    }

    void wholeRecordsOutliveDamage_data()
    {
        const Rows<QByteArray, QByteArray, QString> row("whole", "damaged", "found");
        row("cut within a record", "/c</abs", {}, "/a /b");
        row("cut after a record", "</files>", {}, "/a /b /c");
        row("cut within the folders", "/two</s", {}, "");
        row("text", "/b</abs", "/\x01</abs", "/a /c");
        row("no character", "of b", "of \xe2", "/a /b /c");
        row("start of a record", "<file>\n            <absolute_file_path>/b",
            "<fime>\n            <absolute_file_path>/b", "/a /c");
        row("end of a record", "</file>", "</fi,e>", "/b /c");
        row("end of the list", "</files>", "</filer>", "/a /b /c");
        row("the same twice", "<file>\n            <absolute_file_path>/b",
            "<oh><file>\n            <absolute_file_path>/a", "/a /c");
        row("root", "<hoopline_organizer", "<hooPline_organizer", "/a /b /c");
        row("list", "<files>", "<~iles>", "/a /b /c");
    }

    void wholeRecordsOutliveDamage()
    {
        QFETCH(QByteArray, whole);
        QFETCH(QByteArray, damaged);
        QFETCH(QString, found);
        for (const char *name : {"a", "b", "c"}) {
            const auto file = addFile(QString("/") + name);
            file->setNotes(QString("notes of ") + name);
            file->setTags({QString("tag of ") + name});
            file->setThreads({QSharedPointer<Thread>::create(m_project.data())});
        }
        m_project->setSmartFolders({"/one", "/two"}, {});
        m_project->setAllTags({"unused"});
        QByteArray bytes = DataModelWriter().toBytes(m_project.data());
        const int at = bytes.indexOf(whole);
        QVERIFY(at >= 0);
        if (damaged.isEmpty())
            bytes.truncate(at + 3);
        else
            bytes.replace(at, whole.size(), damaged);

        Project other;
        QVERIFY_EXCEPTION_THROWN(DataModelReader().readFromBytes(&other, bytes, path()),
                                 CatalogueDamagedError);
        const QStringList paths = found.split(' ', Qt::SkipEmptyParts);
        QCOMPARE(DataModelReader().recoverFromBytes(&other, bytes), paths.count());
        QStringList recovered;
        for (const auto &file : other.files()) {
            recovered += file->absoluteFilePath();
            const QString name = file->absoluteFilePath().mid(1);
            QVERIFY(file->notes().startsWith("notes of "));
            QCOMPARE(file->tags(), QStringList("tag of " + name));
            QVERIFY(other.allTags().contains("tag of " + name));
            QCOMPARE(file->threads().count(), 1);
        }
        QCOMPARE(recovered, paths);
        // A path that was cut would be another folder.
        QCOMPARE(other.smartFolders(),
                 found.isEmpty() ? QStringList("/one") : QStringList({"/one", "/two"}));
        QCOMPARE(other.allTags().contains("unused"), !damaged.isEmpty());
    }

    void tolerance()
    {
        load("<hoopline_organizer><unknown><file/></unknown><files>"
             "<file><absolute_file_path>/b</absolute_file_path><strange/>"
             "<file_size>99999999999999</file_size><is_favorite> true </is_favorite></file>"
             "<file><absolute_file_path>/a</absolute_file_path><tags/></file>"
             "</files><files><nonsense/></files></hoopline_organizer>");
        const auto files = m_project->files();
        QCOMPARE(files.count(), 2);
        // Sorted, whatever the order in the file.
        QCOMPARE(files.at(0)->absoluteFilePath(), "/a");
        QCOMPARE(files.at(0)->designSize(), QSizeF(-1, -1));
        QVERIFY(files.at(0)->tags().isEmpty());
        QVERIFY(files.at(1)->tags().isEmpty());
        QCOMPARE(files.at(1)->fileSize(), 0);
        QVERIFY(files.at(1)->isFavorite());
    }

    void failureWithinTheRecords()
    {
        RecordingObserver observer;
        m_project->filesProp()->registerObserver(&observer);
        QCOMPARE(errorOfLoad("<hoopline_organizer><files>"
                             "<file><absolute_file_path>/c</absolute_file_path></file><strange/>"
                             "</files></hoopline_organizer>"),
                 "Failed to read 'files' from XML!\n(Unknown list element 'strange')");
        QCOMPARE(m_project->files().count(), 1);
        // Once for the clearing, once for what was read.
        QCOMPARE(observer.heard.count(), 2);
        QCOMPARE(errorOfLoad("<hoopline_organizer><files><thread/></files></hoopline_organizer>"),
                 QStringLiteral("Failed to read 'files' from XML!\n"
                                "(cannot add 'thread' to list 'files', wrong type)"));
    }

    void loadAnnouncesOnce()
    {
        RecordingObserver observer;
        m_project->smartFoldersProp()->registerObserver(&observer);
        m_project->filesProp()->registerObserver(&observer);
        m_project->allTagsProp()->registerObserver(&observer);
        m_project->presetCollections()->registerObserver(&observer);
        load("<hoopline_organizer><all_tags/><files><file/><file/><file/></files><smart_folders/>"
             "</hoopline_organizer>");
        // In the order of the project's properties, after what clearing told before.
        observer.heard = observer.heard.mid(3);
        QCOMPARE(observer.heard,
                 QList<const Observable *>({m_project->smartFoldersProp(), m_project->filesProp(),
                                            m_project->allTagsProp()}));
    }

    void presetCollections()
    {
        PropertyDescriptionPreset type("hoop", {});
        type.addProperty(new PropertyDescriptionInt("width", {}, {}, 100));
        auto *collection = new PropertyPresetCollection(m_project.data(), &type);
        m_project->presetCollections()->addWithoutUndo(collection);
        for (const char *name : {"large", "small"}) {
            auto *preset = new PropertyPreset(m_project.data(), &type);
            preset->name()->setValueWithoutUndoAndAnnounceChange(name);
            collection->addWithoutUndo(preset);
        }
        addFile("/a.dst");
        m_project->save(path());
        const QByteArray saved = FileTools::readAll(path());

        Project copy;
        PresetReader(&copy, &type).readFromFile(&copy, path());
        QCOMPARE(copy.presetCollectionByName("hoop")->presetNames(),
                 QStringList({"large", "small"}));
        QCOMPARE(copy.files().count(), 1);
        copy.save(path());
        QCOMPARE(FileTools::readAll(path()), saved);
        // The presets go before the type that they are made from.
        m_project.reset();
    }

private:
    QString path() const { return m_dir->filePath("catalogue.xml"); }

    void load(const QByteArray &xml)
    {
        FileTools::writeAll(path(), xml);
        m_project->load(path());
    }

    QString errorOfLoad(const QByteArray &xml)
    {
        return messageOf<Error>([&] { load(xml); });
    }

    QSharedPointer<IFile> addFile(const QString &path)
    {
        const auto file = QSharedPointer<File>::create(m_project.data());
        file->setAbsoluteFilePath(path);
        m_project->filesProp()->addSharedWithoutUndo(file);
        return file;
    }

    QScopedPointer<QTemporaryDir> m_dir;
    QScopedPointer<Project> m_project;
};

QTEST_MAIN(TestCatalogueFile)
#include "tst_cataloguefile.moc"
