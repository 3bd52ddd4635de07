#include "ui/CatalogueWait.h"

#include "base/files/FileLock.h"
#include "widgets/controls/GMessageBox.h"

#include <QTimer>

namespace {

constexpr int PollInterval = 100; // milliseconds

} // namespace

bool CatalogueWait::forLock(FileLock &lock)
{
    if (lock.tryLock() != FileLock::HeldByOther)
        return true;
    GMessageBox box(GMessageBox::Information, nullptr, reasonOf(lock),
                    tr("The window opens as soon as that is done."));
    box.setStandardButtons(QMessageBox::Cancel);
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &box, [&] {
        if (lock.tryLock() != FileLock::HeldByOther)
            box.accept();
    });
    poll.start(PollInterval);
    return box.exec() == QDialog::Accepted;
}

QString CatalogueWait::reasonOf(const FileLock &lock)
{
    const FileLock::Holder holder = lock.holder();
    if (holder.program == QLatin1String("hoopline-cli"))
        return tr("Your folders are being scanned.");
    if (holder.pid > 0)
        return tr("Another program is using your collection: %1, process %2.")
            .arg(holder.program)
            .arg(holder.pid);
    return tr("Another program is using your collection.");
}
