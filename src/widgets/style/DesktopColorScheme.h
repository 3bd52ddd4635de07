#pragma once

#include <QDBusVariant>
#include <QObject>

/**
 * Follows the desktop's wish for a light or a dark look where the platform's
 * theme does not carry it into the palette: it asks the desktop portal
 * (org.freedesktop.portal.Settings, "org.freedesktop.appearance" "color-scheme")
 * and sets the application's palette to one of Palettes' when the answer
 * comes and whenever it changes. Without a portal nothing happens. Never blocks.
 * GUI thread.
 */
class DesktopColorScheme : public QObject
{
    Q_OBJECT

public:
    explicit DesktopColorScheme(QObject *parent);

private Q_SLOTS:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void ask();
    void apply(const QVariant &scheme);
};
