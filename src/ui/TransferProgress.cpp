#include "ui/TransferProgress.h"

#include "widgets/controls/StatusActivity.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QLocale>
#include <QTimer>

namespace {

constexpr int RefreshInterval = 50; // milliseconds

constexpr qint64 Kilobyte = 1024;
constexpr qint64 Megabyte = 1024 * Kilobyte;

} // namespace

TransferProgress::TransferProgress(QWidget *parent) : m_dialog(parent)
{
    // What was begun is brought to its end.
    m_dialog.setCancelEnabled(false);
}

TransferResult TransferProgress::run(const QStringList &sources, const QString &target,
                                     quint64 device)
{
    m_dialog.setSteps(sources.size());
    m_dialog.show();
    const StatusActivity activity(&m_dialog, tr("Copying to the drive..."));
    QEventLoop loop;
    TransferJob job(sources, target, device);
    QTimer refresh;
    QObject::connect(&job, &TransferJob::finished, &loop, &QEventLoop::quit);
    QObject::connect(&refresh, &QTimer::timeout, &loop, [&] { show(sources, job); });
    refresh.start(RefreshInterval);
    job.start();
    loop.exec();
    show(sources, job);
    m_dialog.hide();
    return job.result();
}

void TransferProgress::show(const QStringList &sources, const TransferJob &job)
{
    const TransferJob::Progress now = job.progress();
    while (m_shown < now.begun) {
        const QString name = QFileInfo(sources.at(m_shown++)).fileName();
        m_dialog.proceed(tr("Copying file %1...").arg(name));
    }
    if (now.begun > 0)
        m_dialog.setDetail(detail(now, sources.size()));
}

QString TransferProgress::detail(const TransferJob::Progress &now, int files) const
{
    const bool isLarge = now.totalBytes >= Megabyte;
    const auto size = [isLarge](qint64 bytes) {
        const QLocale locale;
        return isLarge ? locale.toString(double(bytes) / Megabyte, 'f', 1)
                       : locale.toString((bytes + Kilobyte - 1) / Kilobyte);
    };
    const QString text =
        isLarge ? tr("File %1 of %2, %3 of %4 MB") : tr("File %1 of %2, %3 of %4 KB");
    const QLocale locale;
    return text.arg(locale.toString(now.begun), locale.toString(files), size(now.bytes),
                    size(now.totalBytes));
}
