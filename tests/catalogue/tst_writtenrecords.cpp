#include "base/Error.h"
#include "catalogue/records/DataModelReader.h"
#include "catalogue/records/DataModelWriter.h"
#include "catalogue/records/Project.h"
#include "catalogue/records/WrittenRecords.h"
#include "support/Rows.h"

#include <limits>
#include <QtTest>

/** The quick way into a catalogue gives what the slow one gives, or leaves it to that. */
class TestWrittenRecords : public QObject
{
    Q_OBJECT

private slots:
    void everythingTheProgramWritesIsTaken()
    {
        const QByteArray bytes = written();
        Project project;
        WrittenRecords records(&project);
        const auto rest = records.takeFrom(bytes);
        QVERIFY(rest.has_value());
        QVERIFY(!rest->contains("<file>"));
        QCOMPARE(int(records.takeRecords().size()), bytes.count("<file>"));
        QCOMPARE(outcome(bytes), bytes);
        const QByteArray none = DataModelWriter().toBytes(&project);
        QCOMPARE(outcome(none), none);
    }

    void otherFormsAreReadAsXml_data()
    {
        const Rows<QByteArray, QByteArray> row("from", "to");
        row("entity in a number", "<file_size>-1<", "<file_size>&#49;2<");
        row("entity in a size", "h=\"-1\"", "h=\"&#49;2\"");
        row("other entity", "<name>rose<", "<name>ro&#115;e<");
        row("unknown entity", "<name>rose<", "<name>&rose;<");
        row("text in pieces", "<name>rose<", "<name>ro<!-- x -->se<");
        row("literal text", "<name>rose<", "<name><![CDATA[<rose>]]><");
        row("blanks alone", "<name>rose<", "<name>  <");
        row("nothing", "<name>rose<", "<name><");
        row("attribute", "<name>rose<", "<name a=\"b\">rose<");
        row("unknown element", "<name>rose</name>", "<x><name>tulip</name></x><name>rose</name>");
        row("missing element", "<name>rose</name>", "");
        row("twice", "<name>rose</name>", "<name>rose</name><name>tulip</name>");
        row("other order", "<name>rose</name>\n            <design_size", "<design_size");
        row("unknown record", "<file>", "<fill>");
        row("color by name", "#0000ff", "red");
        row("no color", "#0000ff", "#0x12ab");
        row("no truth", "<is_favorite>true", "<is_favorite> true");
        row("no UTF-8", "<name>rose<", "<name>ro\xffse<");
        row("long form of UTF-8", "<name>rose<", "<name>ro\xc1\xb3se<");
        row("half of a pair", "<name>rose<", "<name>\xed\xa0\x80<");
        row("no character", "<name>rose<", "<name>\xef\xbf\xbf<");
        row("control character", "<name>rose<", "<name>\x01<");
        row("sign at the end of literal text", "<name>rose<", "<name>]]><");
        row("end of a record missing", "        </file>\n", "");
        row("other end", "</files>", "</file>");
        row("cut off", "</files>", "\0");
        row("other encoding", "encoding=\"UTF-8\"", "encoding=\"ISO-8859-1\"");
        row("newer version", "version=\"1.0\">\n ", "version=\"9.0\">\n ");
        row("two lists", "</files>\n",
            "</files>\n    <files>\n<file><notes>x</notes></file></files>");
        row("list in a comment", "    <files>\n",
            "<!--\n    <files>\n    </files>\n-->\n<files><!-- -->\n");
        row("list in another", "    <files>\n", "<x>\n    <files>\n    </files>\n</x>\n<files>\n");
        row("line ends of others", "<name>rose</name>\n", "<name>rose</name>\r\n");
        row("malformed behind", "</hoopline_organizer>", "</hoopline>");
    }

    void otherFormsAreReadAsXml()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QByteArray bytes = written();
        const int position = bytes.indexOf(from);
        QVERIFY(position >= 0);
        bytes.replace(position, from.size(), to);
        // A blank there means nothing, and is nothing that the program writes.
        QByteArray asXml = bytes;
        asXml.replace("<files>\n", "<files >\n");
        Project project;
        QVERIFY(!WrittenRecords(&project).takeFrom(asXml));
        QCOMPARE(outcome(bytes), outcome(asXml));
    }

private:
    static QByteArray written()
    {
        const QStringList texts = {
            QString(),
            "rose",
            "a & b < c > \"d\" 'e' ]]>",
            "lines\nand\ttabs\rof\r\nall kinds",
            "   ",
            " at the edges ",
            "Blümchen \u65b0 \U0001f338",
            QString(QChar(1)) + QChar(0xf8fe) + QChar(0xd800) + "0041",
            QString(QChar(QChar::ReplacementCharacter)),
            QString(QChar(0x7f)) + QChar(0x85) + QChar(0xfffe),
        };
        Project project;
        QList<QSharedPointer<IFile>> files;
        for (int i = 0; i < texts.size(); ++i) {
            const auto file = QSharedPointer<File>::create(&project);
            file->setAbsoluteFilePath(QStringLiteral("/%1/").arg(i) + texts.at(i));
            file->setFileSize(i == 1 ? -1 : std::numeric_limits<int>::max() - i);
            file->setModificationDate(std::numeric_limits<unsigned>::max() - unsigned(i));
            file->setContentHash(QByteArray(16, char(i)));
            file->setName(texts.at(i));
            file->setDesignSize(i == 2 ? QSizeF(-1, -1) : QSizeF(0.1 * i, 1e20 / (i + 3)));
            file->setStitchCount(i);
            QList<QSharedPointer<IThread>> threads;
            for (int k = 0; k < i; ++k) {
                const auto thread = QSharedPointer<Thread>::create(&project);
                thread->setColor(k == 1 ? QColor() : QColor(k, 16 * k, 255 - k));
                thread->setColorName(texts.at(k));
                thread->setChart(texts.at(i));
                threads.append(thread);
            }
            file->setThreads(threads);
            file->setNotes(texts.at(i));
            file->setTags(texts.mid(0, i));
            file->setFavorite(i % 2 == 0);
            files.append(file);
        }
        project.setFiles(files);
        project.setAllTags(texts.mid(1));
        return DataModelWriter().toBytes(&project);
    }

    /** What loading it leads to: all that was loaded, or why it failed. */
    static QByteArray outcome(const QByteArray &bytes)
    {
        Project project;
        try {
            DataModelReader().readFromBytes(&project, bytes, "x.xml");
        } catch (const Error &error) {
            return error.toString().toUtf8();
        }
        return DataModelWriter().toBytes(&project);
    }
};

QTEST_MAIN(TestWrittenRecords)
#include "tst_writtenrecords.moc"
