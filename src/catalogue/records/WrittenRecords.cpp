#include "catalogue/records/WrittenRecords.h"

#include "properties/xml/StoredText.h"
#include "properties/xml/XmlTools.h"

#include <algorithm>
#include <cstring>
#include <QColor>

namespace {

constexpr char FilesBegin[] = "\n    <files>\n";
// Records by the hundred thousand have the same few words in them.
constexpr int MostSharedTexts = 2000;

struct Entity
{
    std::string_view name;
    char character;
};
constexpr Entity Entities[] = {
    {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&#13;", '\r'}};

/** Nothing for an entity that the program doesn't write. */
std::optional<QByteArray> withoutEntities(const QByteArray &text)
{
    QByteArray plain;
    std::string_view left(text.constData(), std::size_t(text.size()));
    while (!left.empty()) {
        if (left.front() != '&') {
            plain.append(left.front());
            left.remove_prefix(1);
            continue;
        }
        const auto *entity =
            std::find_if(std::begin(Entities), std::end(Entities), [&](const Entity &known) {
                return left.substr(0, known.name.size()) == known.name;
            });
        if (entity == std::end(Entities))
            return std::nullopt;
        plain.append(entity->character);
        left.remove_prefix(entity->name.size());
    }
    return plain;
}

bool isBlank(char c)
{
    return c == ' ' || c == '\n' || c == '\t';
}

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/** Whether it may stand in a text as the program writes it. */
bool isOfText(char c)
{
    return c != '<' && c != '>' && c != '"' && (uchar(c) >= 0x20 || c == '\n' || c == '\t');
}

} // namespace

std::optional<QByteArray> WrittenRecords::takeFrom(const QByteArray &file)
{
    const int begin = file.indexOf(FilesBegin);
    if (begin < 0)
        return std::nullopt;
    const QByteArray before = file.left(begin + int(std::strlen(FilesBegin)));
    m_here = file.constData() + before.size();
    m_end = file.constData() + file.size();
    while (beginElement("file"))
        readRecord();
    expect("</files>");
    if (m_failed)
        return std::nullopt;
    m_place = QString::fromUtf8(before).size() - 1;
    return before + "</files>" + QByteArray::fromRawData(m_here, int(m_end - m_here));
}

void WrittenRecords::readRecord()
{
    auto file = std::make_unique<File>(m_project);
    file->setAbsoluteFilePath(text("absolute_file_path"));
    file->setFileSize(plainElement("file_size").toInt());
    file->setModificationDate(plainElement("modification_date").toUInt());
    file->contentHashProp()->setValueWithoutUndoAndAnnounceChange(text("content_hash"));
    file->setName(text("name"));
    expect("<design_size");
    const double height = attribute(" h=\"");
    const double width = attribute(" w=\"");
    file->setDesignSize({width, height});
    expect("/>");
    file->setStitchCount(plainElement("stitch_count").toInt());
    if (beginElement("threads")) {
        QList<QSharedPointer<IThread>> threads;
        while (beginElement("thread"))
            readThread(threads);
        file->setThreads(threads);
        expect("</threads>");
    } else {
        expect("<threads/>");
    }
    file->notesProp()->setValueWithoutUndoAndAnnounceChange(text("notes"));
    readTags(*file);
    const QByteArray favorite = element("is_favorite");
    m_failed = m_failed || (favorite != "true" && favorite != "false");
    file->isFavoriteProp()->setValueWithoutUndoAndAnnounceChange(favorite == "true");
    expect("</file>");
    m_records.push_back(std::move(file));
}

void WrittenRecords::readThread(QList<QSharedPointer<IThread>> &threads)
{
    const auto thread = QSharedPointer<Thread>::create(m_project);
    const QByteArray color = element("color");
    m_failed = m_failed || color.size() != 7 || color.at(0) != '#' ||
               !std::all_of(color.begin() + 1, color.end(), isHexDigit);
    thread->setColor(QColor(QRgb(color.mid(1).toUInt(nullptr, 16))));
    thread->setColorName(sharedText("color_name"));
    thread->setChart(sharedText("chart"));
    expect("</thread>");
    threads.append(thread);
}

void WrittenRecords::readTags(File &file)
{
    if (!beginElement("tags")) {
        expect("<tags/>");
        return;
    }
    QStringList tags;
    skipBlanks();
    while (!m_failed && !skip("</tags>")) {
        tags.append(sharedText("string"));
        skipBlanks();
    }
    file.tagsProp()->setValueWithoutUndoAndAnnounceChange(tags);
}

bool WrittenRecords::skip(std::string_view expected)
{
    const bool there = !m_failed && std::size_t(m_end - m_here) >= expected.size() &&
                       std::memcmp(m_here, expected.data(), expected.size()) == 0;
    if (there)
        m_here += expected.size();
    return there;
}

void WrittenRecords::expect(std::string_view expected)
{
    skipBlanks();
    m_failed = !skip(expected);
}

void WrittenRecords::skipBlanks()
{
    while (m_here < m_end && isBlank(*m_here))
        ++m_here;
}

/** Goes into an element with children, and nowhere when it isn't there. */
bool WrittenRecords::beginElement(std::string_view name)
{
    skipBlanks();
    const char *before = m_here;
    if (skip("<") && skip(name) && skip(">"))
        return true;
    m_here = before;
    return false;
}

/** The bytes of the text of an element; a view of the file. */
QByteArray WrittenRecords::element(std::string_view name)
{
    expect("<");
    m_failed = !skip(name);
    if (skip("/>"))
        return {};
    m_failed = !skip(">");
    QByteArray bytes = bytesOfText();
    // The program writes no texts of blanks alone; the reader has an opinion on them.
    m_failed = m_failed || std::all_of(bytes.begin(), bytes.end(), isBlank);
    m_failed = !(skip("</") && skip(name) && skip(">"));
    return bytes;
}

QByteArray WrittenRecords::bytesOfText()
{
    const char *begin = m_here;
    m_here = std::find_if_not(m_here, m_end, isOfText);
    return QByteArray::fromRawData(begin, int(m_here - begin));
}

QString WrittenRecords::text(std::string_view name)
{
    return decoded(element(name));
}

QString WrittenRecords::sharedText(std::string_view name)
{
    const QByteArray bytes = element(name);
    const auto known = m_sharedTexts.constFind(bytes);
    if (known != m_sharedTexts.cend())
        return *known;
    QString text = decoded(bytes);
    if (m_sharedTexts.size() < MostSharedTexts)
        m_sharedTexts.insert(QByteArray(bytes.constData(), bytes.size()), text);
    return text;
}

/** One whose text stands for itself. */
QByteArray WrittenRecords::plainElement(std::string_view name)
{
    QByteArray bytes = element(name);
    m_failed = m_failed || bytes.contains('&');
    return bytes;
}

double WrittenRecords::attribute(std::string_view name)
{
    m_failed = !skip(name);
    const QByteArray bytes = bytesOfText();
    m_failed = bytes.contains('&') || !skip("\"");
    return bytes.toDouble();
}

QString WrittenRecords::decoded(const QByteArray &bytes)
{
    const std::optional<QByteArray> plain =
        bytes.contains('&') ? withoutEntities(bytes) : std::make_optional(bytes);
    if (!plain) {
        m_failed = true;
        return {};
    }
    QString text = QString::fromUtf8(*plain);
    if (std::all_of(plain->begin(), plain->end(), [](char c) { return uchar(c) < 0x80; }))
        return text;
    // What is no UTF-8, or no character of XML, is for the reader to judge.
    if (text.toUtf8() != *plain || XmlTools::withoutInvalidCharacters(text).size() != text.size())
        m_failed = true;
    return StoredText::decode(text);
}
