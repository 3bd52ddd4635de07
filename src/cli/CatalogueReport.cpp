#include "cli/CatalogueReport.h"

#include "base/GlobalSettings.h"
#include "catalogue/records/IThread.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "cli/Csv.h"
#include "cli/JsonWriter.h"
#include "cli/TextWidth.h"
#include <algorithm>
#include <QColor>
#include <QStringList>
#include <QVector>

namespace {

void writeExtent(JsonWriter &json, const char *name, double millimetres)
{
    json.key(name);
    if (millimetres < 0)
        json.null();
    else
        json.value(millimetres);
}

void writeThreads(JsonWriter &json, const QList<QSharedPointer<IThread>> &threads)
{
    json.key("threads");
    json.beginArray();
    for (const auto &thread : threads) {
        json.beginObject();
        json.member("color", thread->color().name());
        json.member("description", thread->colorName());
        json.member("chart", thread->chart());
        json.endObject();
    }
    json.endArray();
}

QString tableLine(const QStringList &row, const QVector<int> &widths)
{
    QStringList cells;
    for (int i = 0; i < row.size(); ++i)
        cells.append(TextWidth::padded(row.at(i), widths.at(i)));
    QString line = cells.join(QStringLiteral("  "));
    while (line.endsWith(QLatin1Char(' ')))
        line.chop(1);
    return line;
}

} // namespace

void CatalogueReport::writeJson(const Files &files)
{
    JsonWriter json(m_output);
    for (const auto &file : files) {
        json.beginObject();
        json.member("file", file->absoluteFilePath());
        json.member("name", file->name());
        json.member("md5", QString::fromLatin1(file->contentHash().toHex()));
        json.member("file_size", file->fileSize());
        json.member("modification_date", qint64(file->modificationDate()));
        json.member("stitch_count", file->stitchCount());
        writeExtent(json, "width_mm", file->designSize().width());
        writeExtent(json, "height_mm", file->designSize().height());
        writeThreads(json, file->threads());
        json.member("notes", file->notes());
        json.key("tags");
        json.beginArray();
        const QStringList tags = file->tags();
        for (const QString &tag : tags)
            json.value(tag);
        json.endArray();
        json.member("favorite", file->isFavorite());
        json.endObject();
        json.endLine();
    }
}

void CatalogueReport::writeCsv(const Files &files)
{
    const QStringList columns = DesignFormat::columns();
    m_output.writeLine(Csv::line(columns));
    for (const auto &file : files) {
        QStringList fields;
        for (const QString &column : columns)
            fields.append(DesignFormat::value(*file, column));
        const QString line = Csv::line(fields);
        // Programs get the text as it is.
        m_output.writeLine(m_output.isTerminal() ? Console::printable(line) : line);
    }
}

void CatalogueReport::writeLines(const Files &files, const DesignFormat &format, bool nullSeparated)
{
    for (const auto &file : files)
        m_output.writeEntry(format.line(*file), nullSeparated);
}

void CatalogueReport::writeTable(const Files &files)
{
    const bool imperial = GlobalSettings().imperialUnits();
    QVector<QStringList> rows{
        {QString(), tr("File"), tr("Size"), tr("Stitches"), tr("Colors"), tr("Tags")}};
    for (const auto &file : files) {
        rows.append({file->isFavorite() ? QStringLiteral("*") : QString(),
                     Console::printable(file->absoluteFilePath()),
                     LocaleAwareFunctions::toText(file->designSize(), imperial),
                     QString::number(file->stitchCount()), QString::number(file->threads().size()),
                     Console::printable(file->tags().join(QStringLiteral(", ")))});
    }
    QVector<int> widths(rows.constFirst().size(), 0);
    for (const QStringList &row : qAsConst(rows)) {
        for (int i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], TextWidth::of(row.at(i)));
    }
    m_output.writeRemark(tableLine(rows.takeFirst(), widths));
    for (const QStringList &row : qAsConst(rows))
        m_output.writeLine(tableLine(row, widths));
    m_output.writeRemark(tr("%n design(s)", nullptr, files.size()));
}
