#include "base/SettingsFormat.h"

#include <atomic>
#include <cerrno>
#include <QFileDevice>
#include <unistd.h>

namespace {

// What could not be read must not be replaced by what little is known of it.
std::atomic<bool> lastReadFailed{false};

bool isSafe(QIODevice &device)
{
    auto *file = qobject_cast<QFileDevice *>(&device);
    if (!file)
        return true;
    // Some file systems have no way to wait for the disk.
    return file->flush() && (fsync(file->handle()) == 0 || errno == EINVAL || errno == ENOTSUP);
}

bool read(QIODevice &device, QSettings::SettingsMap &settings)
{
    const QByteArray bytes = device.readAll();
    const auto *file = qobject_cast<const QFileDevice *>(&device);
    lastReadFailed = file && file->error() != QFileDevice::NoError;
    if (lastReadFailed)
        return false;
    settings = SettingsFormat::parse(bytes);
    return true;
}

bool write(QIODevice &device, const QSettings::SettingsMap &settings)
{
    if (lastReadFailed)
        return false;
    const QByteArray bytes = SettingsFormat::serialize(settings);
    const bool written = device.write(bytes) == bytes.size() && isSafe(device);
    if (!written)
        qWarning("The settings could not be written: %s", qPrintable(device.errorString()));
    return written;
}

} // namespace

QSettings::Format SettingsFormat::format()
{
    static const QSettings::Format registered =
        QSettings::registerFormat(QStringLiteral("conf"), &read, &write, Qt::CaseSensitive);
    return registered;
}
