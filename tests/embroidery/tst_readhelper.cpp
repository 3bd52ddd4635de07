#include "embroidery/IOException.h"
#include "embroidery/ReadHelper.h"
#include "support/Rows.h"

#include <QtTest>

#include <functional>

using namespace Embroidery;

static QString errorOf(const std::function<void()> &action)
{
    try {
        action();
    } catch (const IOException &e) {
        return e.message;
    }
    return QString();
}

const QString endOfFile = "Unexpected end of file.";
const QString endOfText = "Unexpected end of file";

class TestReadHelper : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_helper = ReadHelper(); }

    void fixedWidthReads()
    {
        ReadHelper &helper = over(QByteArray::fromHex("ff feff 030201 feffffff 12345678"));
        QCOMPARE(helper.readInt8(), 255);
        QCOMPARE(helper.readInt16LE(), 65534);
        QCOMPARE(helper.readInt24LE(), 0x010203);
        QCOMPARE(helper.readInt32LE(), -2);
        QCOMPARE(helper.readInt32BE(), 0x12345678);
        QCOMPARE(helper.tell(), 14);
        QVERIFY(helper.atEnd());
        QCOMPARE(errorOf([&] { helper.readInt8(); }), endOfFile);
        QCOMPARE(helper.tell(), 14);

        // A read that is cut off counts what came.
        over("abc");
        QCOMPARE(errorOf([&] { helper.readInt32LE(); }), endOfFile);
        QCOMPARE(helper.tell(), 3);
        QVERIFY(helper.atEnd());
    }

    void seekLeavesTheCount()
    {
        ReadHelper &helper = over("abcd");
        helper.readInt8();
        helper.seek(3);
        QCOMPARE(helper.tell(), 1);
        QCOMPARE(helper.readInt8(), int('d'));
        helper.seek(4);
        QVERIFY(helper.atEnd());
        QCOMPARE(errorOf([&] { helper.seek(5); }), endOfFile);
    }

    void skipAndSeekOutOfRange()
    {
        ReadHelper &helper = over("abcd");
        helper.readInt16LE();
        helper.skip(-5);
        helper.seek(-1);
        QCOMPARE(helper.tell(), -3);
        QCOMPARE(helper.readInt8(), int('c'));
        helper.skip(std::numeric_limits<int>::max());
        helper.skip(9);
        QCOMPARE(helper.tell(), Q_INT64_C(2147483654));
        QCOMPARE(errorOf([&] { helper.readInt8(); }), endOfFile);
    }

    void readFully()
    {
        ReadHelper &helper = over("abc");
        char bytes[4] = {};
        QCOMPARE(helper.readFully(bytes, 2), 2);
        QCOMPARE(helper.readFully(bytes, 4), 1);
        QCOMPARE(bytes[0], 'c');
        QCOMPARE(helper.tell(), 3);
        QCOMPARE(helper.readFully(bytes, 1), -1);
    }

    void readData()
    {
        ReadHelper &helper = over("abcd");
        QCOMPARE(helper.readData(3), "abc");
        QCOMPARE(helper.tell(), 0);
        QCOMPARE(errorOf([&] { helper.readData(2); }), endOfFile);
        QCOMPARE(errorOf([&] { helper.readData(-1); }), endOfFile);
    }

    void readString_data()
    {
        const Rows<QByteArray, int, QString, int, int> row("bytes", "length", "text", "position",
                                                           "consumed");

        row("whole", "abc!", 3, "abc", 3, 3);
        row("stops at zero", QByteArray("AB\0cd", 5), 16, "AB", 2, 3);
        row("zero first", QByteArray("\0cd", 3), 2, {}, 0, 1);
        row("nothing asked for", "ab", 0, {}, 0, 0);
        row("negative", "ab", -4, {}, 0, 0);
        row("two bytes, one character", "\xC3\xA4z!", 3, QString::fromUtf8("\xC3\xA4z"), 2, 3);
        row("outside the basic plane", "\xF0\x9F\x8C\xB9!", 4,
            QString::fromUtf8("\xF0\x9F\x8C\xB9"), 2, 4);
    }

    void readString()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, length);
        QFETCH(QString, text);
        QFETCH(int, position);
        QFETCH(int, consumed);

        ReadHelper &helper = over(bytes);
        const QString result = helper.readString(length);
        QCOMPARE(result, text);
        QCOMPARE(result.isNull(), text.isNull());
        QCOMPARE(helper.tell(), position);
        QCOMPARE(helper.readData(bytes.size() - consumed), bytes.mid(consumed));
    }

    void readStringFromADevice()
    {
        QCOMPARE(errorOf([&] { over("ab").readString(3); }), endOfText);
        QCOMPARE(errorOf([&] { over("").readString(1); }), endOfText);

        QBuffer buffer;
        buffer.setData(QByteArray("AB\0cd", 5));
        buffer.open(QIODevice::ReadOnly);
        QCOMPARE(ReadHelper::readString(&buffer, 16), "AB");
        QCOMPARE(buffer.pos(), 3);
        QCOMPARE(errorOf([&] { ReadHelper::readString(&buffer, 3); }), endOfText);
        QVERIFY(ReadHelper::readString(&buffer, 0).isNull());
    }

    void withoutADevice()
    {
        const QString noStream = "Stream does not exist";
        ReadHelper helper;
        QCOMPARE(errorOf([&] { helper.readString(0); }), noStream);
        QCOMPARE(errorOf([&] { ReadHelper::readString(nullptr, 0); }), noStream);
        QCOMPARE(errorOf([&] { helper.readInt8(); }), endOfFile);
    }

    void startsAtTheDevicePosition()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write("abcdef");
        file.seek(2);
        ReadHelper helper;
        helper.setDevice(&file);
        QCOMPARE(helper.size(), 6);
        QCOMPARE(helper.tell(), 0);
        QCOMPARE(helper.readInt8(), int('c'));
        helper.seek(0);
        QCOMPARE(helper.readInt8(), int('a'));
    }

    void refusesAHugeDevice()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        QVERIFY(file.resize(ReadHelper::MaximumSize + 1));
        ReadHelper helper;
        QCOMPARE(errorOf([&] { helper.setDevice(&file); }), "File is too large");
    }

private:
    /** A helper over the bytes. */
    ReadHelper &over(const QByteArray &bytes)
    {
        QBuffer buffer;
        buffer.setData(bytes);
        buffer.open(QIODevice::ReadOnly);
        m_helper.setDevice(&buffer);
        return m_helper;
    }

    ReadHelper m_helper;
};

QTEST_APPLESS_MAIN(TestReadHelper)
#include "tst_readhelper.moc"
