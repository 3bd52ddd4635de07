#include "cli/DesignReport.h"

#include "base/GlobalSettings.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "cli/TextWidth.h"
#include "embroidery/EmbThread.h"

namespace {

constexpr double UnitsPerMillimetre = 10.0;
constexpr int LabelWidth = 12;

} // namespace

void DesignReport::writeJson(const DesignFile &file, bool withPoints)
{
    m_json.beginObject();
    m_json.member("file", file.name());
    if (file.isReadable()) {
        const Embroidery::EmbPattern &pattern = *file.pattern();
        const QRectF bounds = pattern.boundingRect();
        m_json.member("format", pattern.format());
        m_json.member("md5", file.md5());
        m_json.member("stitch_count", pattern.getStitchCount());
        m_json.member("thread_count", pattern.getThreadCount());
        m_json.key("bounds");
        m_json.beginArray();
        for (const float edge :
             {pattern.getMinX(), pattern.getMinY(), pattern.getMaxX(), pattern.getMaxY()})
            m_json.value(double(edge));
        m_json.endArray();
        m_json.member("width_mm", bounds.width() / UnitsPerMillimetre);
        m_json.member("height_mm", bounds.height() / UnitsPerMillimetre);
        m_json.key("metadata");
        m_json.beginObject();
        const auto metadata = pattern.getMetadata();
        for (auto it = metadata.begin(); it != metadata.end(); ++it) {
            m_json.key(it.key());
            m_json.value(it.value());
        }
        m_json.endObject();
        writeThreads(pattern);
        if (withPoints)
            writePoints(pattern);
    } else {
        m_json.member("error", file.error());
    }
    m_json.endObject();
    m_json.endLine();
}

void DesignReport::writeThreads(const Embroidery::EmbPattern &pattern)
{
    m_json.key("threads");
    m_json.beginArray();
    const auto threads = pattern.threadList();
    for (const auto &thread : threads) {
        m_json.beginObject();
        m_json.member("color", thread->getHexColor());
        m_json.member("description", thread->getDescription());
        m_json.member("catalog_number", thread->getCatalogNumber());
        m_json.member("brand", thread->getBrand());
        m_json.member("chart", thread->getChart());
        m_json.endObject();
    }
    m_json.endArray();
}

void DesignReport::writePoints(const Embroidery::EmbPattern &pattern)
{
    m_json.key("points");
    m_json.beginArray();
    for (int i = 0; i < pattern.size(); ++i) {
        m_json.beginArray();
        m_json.value(double(pattern.getX(i)));
        m_json.value(double(pattern.getY(i)));
        m_json.value(pattern.getData(i));
        m_json.endArray();
    }
    m_json.endArray();
}

void DesignReport::writeTable(const DesignFile &file)
{
    const Embroidery::EmbPattern &pattern = *file.pattern();
    const QRectF bounds = pattern.boundingRect();
    m_output.writeLine(Console::printable(file.name()));
    writeRow(tr("Format"), pattern.format());
    writeRow(tr("Size"), LocaleAwareFunctions::toText(bounds.size() / UnitsPerMillimetre,
                                                      GlobalSettings().imperialUnits()));
    writeRow(tr("Stitches"), QString::number(pattern.getStitchCount()));
    writeRow(tr("Colors"), QString::number(pattern.getThreadCount()));
    writeRow(tr("MD5"), file.md5());
    const auto metadata = pattern.getMetadata();
    for (auto it = metadata.begin(); it != metadata.end(); ++it)
        writeRow(it.key(), it.value());
    const auto threads = pattern.threadList();
    for (int i = 0; i < threads.size(); ++i) {
        const auto &thread = threads.at(i);
        const QStringList facts{thread->getHexColor(), thread->getDescription(),
                                thread->getCatalogNumber(), thread->getBrand(), thread->getChart()};
        writeRow(tr("Thread %1").arg(i + 1), facts.join(QLatin1Char(' ')).simplified());
    }
}

void DesignReport::writeRow(const QString &label, const QString &text)
{
    // Texts of several lines, such as comments, go on below their first line.
    QString margin = Console::printable(label);
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        m_output.writeLine(QStringLiteral("  ") + TextWidth::padded(margin, LabelWidth) +
                           QLatin1Char(' ') + Console::printable(line));
        margin.clear();
    }
}
