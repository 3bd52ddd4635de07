#include "online/UpdateFeed.h"

#include "online/services/VersionCompare.h"
#include "properties/xml/ForeignXml.h"

#include <QDomDocument>
#include <QRegularExpression>

namespace {

constexpr int MaxVersionLength = 32;

// What bears no version, or none that could be one, is passed over.
bool isRelease(const QDomElement &item)
{
    const QString version = item.firstChildElement(QStringLiteral("enclosure"))
                                .attribute(QStringLiteral("sparkle:version"));
    static const QRegularExpression digit(QStringLiteral("[0-9]"));
    return version.size() <= MaxVersionLength && version.contains(digit);
}

AvailableUpdate release(const QDomElement &item)
{
    const QDomElement enclosure = item.firstChildElement(QStringLiteral("enclosure"));
    const auto text = [&item](const QString &name) {
        return item.firstChildElement(name).text().trimmed();
    };
    AvailableUpdate update;
    update.version = enclosure.attribute(QStringLiteral("sparkle:version"));
    update.title = text(QStringLiteral("title"));
    update.releaseDate =
        QDate::fromString(text(QStringLiteral("tnw:releaseDate")), QStringLiteral("yyyy-MM-dd"));
    update.releaseNotes = QUrl(text(QStringLiteral("sparkle:releaseNotesLink")), QUrl::StrictMode);
    update.download = QUrl(enclosure.attribute(QStringLiteral("url")), QUrl::StrictMode);
    return update;
}

AvailableUpdate newestRelease(const QDomElement &channel, const QString &ownVersion)
{
    const QString itemTag = QStringLiteral("item");
    AvailableUpdate best;
    best.version = ownVersion;
    for (QDomElement item = channel.firstChildElement(itemTag); !item.isNull();
         item = item.nextSiblingElement(itemTag)) {
        if (!isRelease(item))
            continue;
        const AvailableUpdate candidate = release(item);
        if (VersionCompare::compare(candidate.version, best.version) == 1)
            best = candidate;
    }
    return best;
}

UpdateFeed failed(UpdateFeed::Problem problem)
{
    UpdateFeed feed;
    feed.problem = problem;
    return feed;
}

} // namespace

UpdateFeed UpdateFeed::read(const QByteArray &data, const QString &ownVersion)
{
    QDomDocument document;
    if (!ForeignXml::parse(document, data))
        return failed(NoXml);
    const QDomElement rss = document.firstChildElement(QStringLiteral("rss"));
    if (rss.isNull())
        return failed(NotRss);
    const QDomElement channel = rss.firstChildElement(QStringLiteral("channel"));
    if (channel.isNull())
        return failed(NoChannel);
    UpdateFeed feed;
    feed.newest = newestRelease(channel, ownVersion);
    return feed;
}
