#include "ui/TransferNotice.h"

#include "drives/DriveInfo.h"
#include "ui/NoticeBar.h"
#include "widgets/controls/StatusActivity.h"

#include <QLocale>

namespace {

QString noticeId()
{
    return QStringLiteral("transfer");
}

} // namespace

TransferNotice::TransferNotice(NoticeBar *notices, QObject *parent)
    : QObject(parent), m_notices(notices)
{
}

TransferNotice::~TransferNotice() = default;

void TransferNotice::tell(const TransferResult &result, const DriveInfo &drive)
{
    m_ejector.reset();
    m_activity.reset();
    m_notices->withdraw(noticeId());
    if (result.copied == 0)
        return;
    m_driveName = drive.displayName();
    QString text = result.hasFailed()
                       ? tr("%1 of %2 files were copied to %3.")
                             .arg(QLocale().toString(result.copied),
                                  QLocale().toString(result.total), m_driveName)
                       : tr("%n file(s) copied to %1.", nullptr, result.copied).arg(m_driveName);
    if (result.replacedByLater > 0)
        text += QLatin1Char(' ') + tr("%n of them gave way to a later one of the same name.",
                                      nullptr, result.replacedByLater);
    tellText(text);
    m_ejector = std::make_unique<DriveEjector>(drive.mount.source);
    connect(m_ejector.get(), &DriveEjector::available, this, [this, text] { offerEject(text); });
    connect(m_ejector.get(), &DriveEjector::ejected, this, [this] {
        m_activity.reset();
        tellText(tr("%1 can be taken out now.").arg(m_driveName));
    });
    connect(m_ejector.get(), &DriveEjector::failed, this, &TransferNotice::tellFailure);
    m_ejector->find();
}

void TransferNotice::tellText(const QString &text)
{
    m_notices->tell({noticeId(), Notice::Information, text, {}});
}

void TransferNotice::offerEject(const QString &text)
{
    // The user may have closed the notice since.
    if (m_notices->isTelling(noticeId()))
        m_notices->tell(
            {noticeId(), Notice::Information, text, {{tr("Eject"), [this] { eject(); }}}});
}

void TransferNotice::eject()
{
    tellText(tr("Ejecting %1...").arg(m_driveName));
    m_activity = std::make_unique<StatusActivity>(this, tr("Ejecting %1...").arg(m_driveName));
    m_ejector->eject();
}

void TransferNotice::tellFailure(DriveEjector::Failure failure, const QString &systemText)
{
    m_activity.reset();
    QString reason = systemText;
    if (failure == DriveEjector::Busy)
        reason = tr("another program still uses it.");
    else if (failure == DriveEjector::Denied)
        reason = tr("this needs more rights than you have.");
    offerEject(tr("%1 cannot be ejected: %2").arg(m_driveName, reason));
}
