#pragma once

#include <QSettings>

/**
 * The form of the settings file: INI as QSettings writes it by itself, so that older
 * versions read it, but written with care. QSettings does not notice when the last of
 * its bytes find no room on the disk, and an empty file takes the place of the old one.
 */
class SettingsFormat
{
public:
    /** The format for QSettings; its files have the suffix that they always had. */
    static QSettings::Format format();

    /** The settings that @p bytes hold; what is malformed is left out. */
    static QSettings::SettingsMap parse(const QByteArray &bytes);

    static QByteArray serialize(const QSettings::SettingsMap &settings);
};
