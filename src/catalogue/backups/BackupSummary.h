#pragma once

#include <optional>
#include <QByteArray>

/** What people see of a backup before they choose one. */
struct BackupSummary
{
    int designs = 0;
    int tagged = 0; ///< designs that bear a tag
    int notes = 0;  ///< designs that bear a note
    int stars = 0;  ///< designs with a star

    /** Counts what the bytes of a catalogue hold; none when they are no whole one. Any thread. */
    static std::optional<BackupSummary> of(const QByteArray &catalogue);

    bool operator==(const BackupSummary &other) const;
};
