#include "cli/CatalogueReport.h"

#include "base/GlobalSettings.h"
#include "catalogue/records/IThread.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "cli/JsonWriter.h"
#include <algorithm>
#include <QColor>
#include <QStringList>
#include <QVector>

namespace {

/** Empty when the extent is not known. */
QByteArray extent(double millimetres)
{
    return millimetres < 0 ? QByteArray() : JsonWriter::number(millimetres);
}

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

QString csvField(const QString &text)
{
    const bool plain = std::none_of(text.begin(), text.end(), [](QChar c) {
        return c == QLatin1Char('"') || c == QLatin1Char(',') || c == QLatin1Char('\n') ||
               c == QLatin1Char('\r');
    });
    if (plain)
        return text;
    QString quoted = text;
    quoted.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

QString csvLine(const QStringList &fields)
{
    QStringList line;
    for (const QString &field : fields)
        line.append(csvField(field));
    return line.join(QLatin1Char(','));
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
    m_output.writeLine(QStringLiteral("file,name,md5,file_size,modification_date,stitch_count,"
                                      "width_mm,height_mm,thread_count,notes,tags,favorite"));
    for (const auto &file : files) {
        m_output.writeLine(csvLine({
            file->absoluteFilePath(),
            file->name(),
            QString::fromLatin1(file->contentHash().toHex()),
            QString::number(file->fileSize()),
            QString::number(file->modificationDate()),
            QString::number(file->stitchCount()),
            QString::fromLatin1(extent(file->designSize().width())),
            QString::fromLatin1(extent(file->designSize().height())),
            QString::number(file->threads().size()),
            file->notes(),
            file->tags().join(QLatin1Char(';')),
            file->isFavorite() ? QStringLiteral("true") : QStringLiteral("false"),
        }));
    }
}

void CatalogueReport::writeTable(const Files &files)
{
    const bool imperial = GlobalSettings().imperialUnits();
    QVector<QStringList> rows{
        {QString(), tr("File"), tr("Size"), tr("Stitches"), tr("Colours"), tr("Tags")}};
    for (const auto &file : files) {
        rows.append({file->isFavorite() ? QStringLiteral("*") : QString(),
                     Console::printable(file->absoluteFilePath()),
                     LocaleAwareFunctions::toString(file->designSize(), imperial),
                     QString::number(file->stitchCount()), QString::number(file->threads().size()),
                     Console::printable(file->tags().join(QStringLiteral(", ")))});
    }
    QVector<int> widths(rows.constFirst().size(), 0);
    for (const QStringList &row : qAsConst(rows)) {
        for (int i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row.at(i).size());
    }
    for (const QStringList &row : qAsConst(rows)) {
        QStringList cells;
        for (int i = 0; i < row.size(); ++i)
            cells.append(row.at(i).leftJustified(widths.at(i)));
        QString text = cells.join(QStringLiteral("  "));
        while (text.endsWith(QLatin1Char(' ')))
            text.chop(1);
        m_output.writeLine(text);
    }
    m_output.writeLine(tr("%n design(s)", nullptr, files.size()));
}
