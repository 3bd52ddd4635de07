#pragma once

#include <QDate>
#include <QString>
#include <QUrl>

/** A release that a feed offers. All of it is the word of whoever answered. */
struct AvailableUpdate
{
    QString version;
    QString title;
    /** Invalid when the feed tells none. */
    QDate releaseDate;
    /** A page about the release. */
    QUrl releaseNotes;
    QUrl download;

    /** Whether the download comes over a connection that proves who sends it. */
    bool canBeInstalled() const;
    /** Whether there is a page that a browser may be sent to. */
    bool hasReleaseNotes() const;
};
