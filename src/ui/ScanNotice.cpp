#include "ui/ScanNotice.h"

#include "ui/NoticeBar.h"
#include "ui/ScanReportDialog.h"
#include "widgets/controls/GMessageBox.h"

#include <QTimer>
#include <utility>

namespace {

constexpr int MostLines = 10; // in a box

QString noticeId()
{
    return QStringLiteral("scan");
}

} // namespace

ScanNotice::ScanNotice(NoticeBar *notices, std::function<void()> rescan, QWidget *window)
    : QObject(window), m_notices(notices), m_rescan(std::move(rescan)), m_window(window)
{
}

void ScanNotice::withdraw()
{
    m_notices->withdraw(noticeId());
}

void ScanNotice::tell(const ScanReport &report)
{
    m_report = report;
    const QString counts = summary(report);
    QString text = counts.isEmpty() ? tr("Nothing has changed.") : counts;
    if (report.stopped)
        text = counts.isEmpty() ? tr("The scan was stopped.") : tr("Stopped: %1").arg(counts);
    QList<Notice::Action> actions;
    if (!counts.isEmpty())
        actions.append({tr("Show"), [this] { showList(); }});
    if (report.stopped)
        actions.append({tr("Rescan"), m_rescan});
    m_notices->tell({noticeId(), Notice::Information, text, actions});
    QStringList failures;
    for (const UnreadableFile &file : report.unreadable) {
        if (!file.damaged)
            failures.append(tr("%1: %2", "file and reason").arg(file.path, file.reason));
    }
    // The window first shows what the scan has led to.
    if (!failures.isEmpty())
        QTimer::singleShot(0, this, [this, failures] { tellFailures(failures); });
}

QString ScanNotice::summary(const ScanReport &report)
{
    QStringList parts;
    const auto add = [&parts](int count, const QString &text) {
        if (count > 0)
            parts.append(text);
    };
    add(report.added.size(), tr("%n new", nullptr, report.added.size()));
    add(report.changed.size(), tr("%n changed", nullptr, report.changed.size()));
    add(report.moved.size(), tr("%n moved", nullptr, report.moved.size()));
    add(report.removed.size(), tr("%n gone", nullptr, report.removed.size()));
    add(report.unreadable.size(), tr("%n not readable", nullptr, report.unreadable.size()));
    add(report.skipped.size(), tr("%n left out", nullptr, report.skipped.size()));
    add(report.unreached.size(), tr("%n not read yet", nullptr, report.unreached.size()));
    return parts.join(tr(", ", "between the counts of a scan"));
}

void ScanNotice::showList()
{
    ScanReportDialog(m_report, m_window).exec();
}

void ScanNotice::tellFailures(const QStringList &failures)
{
    QStringList lines = failures.mid(0, MostLines);
    if (failures.size() > MostLines)
        lines.append(tr("and %n more", nullptr, failures.size() - MostLines));
    GMessageBox::critical(tr("%n file(s) could not be read.", nullptr, failures.size()),
                          lines.join(QLatin1Char('\n')), m_window);
}
