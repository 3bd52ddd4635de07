#include "catalogue/backups/BackupSummary.h"

#include <QXmlStreamReader>
#include <tuple>

namespace {

constexpr auto Read = QXmlStreamReader::IncludeChildElements;

/** Reads the list at which @p xml stands. */
bool holdsAny(QXmlStreamReader &xml)
{
    bool any = false;
    while (xml.readNextStartElement()) {
        any = true;
        xml.skipCurrentElement();
    }
    return any;
}

void countDesign(QXmlStreamReader &xml, BackupSummary &summary)
{
    ++summary.designs;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("tags"))
            summary.tagged += holdsAny(xml);
        else if (xml.name() == QLatin1String("notes"))
            summary.notes += !xml.readElementText(Read).isEmpty();
        else if (xml.name() == QLatin1String("is_favorite"))
            summary.stars += xml.readElementText(Read) == QLatin1String("true");
        else
            xml.skipCurrentElement();
    }
}

void countDesigns(QXmlStreamReader &xml, BackupSummary &summary)
{
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("file"))
            countDesign(xml, summary);
        else
            xml.skipCurrentElement();
    }
}

} // namespace

std::optional<BackupSummary> BackupSummary::of(const QByteArray &catalogue)
{
    QXmlStreamReader xml(catalogue);
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("hoopline_organizer"))
        return std::nullopt;
    BackupSummary summary;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("files"))
            countDesigns(xml, summary);
        else
            xml.skipCurrentElement();
    }
    // What comes behind the last element counts as well.
    while (!xml.atEnd())
        xml.readNext();
    return xml.hasError() ? std::nullopt : std::optional(summary);
}

bool BackupSummary::operator==(const BackupSummary &other) const
{
    return std::tie(designs, tagged, notes, stars) ==
           std::tie(other.designs, other.tagged, other.notes, other.stars);
}
