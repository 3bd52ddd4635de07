#pragma once

#include "drives/DriveEjector.h"
#include "drives/TransferResult.h"

#include <memory>
#include <QObject>

class NoticeBar;
class StatusActivity;
struct DriveInfo;
struct Notice;

/** Tells at the top of the window what a transfer has copied, and lets its drive be ejected. */
class TransferNotice : public QObject
{
    Q_OBJECT

public:
    /** @param notices not owned, lives as long as this does */
    TransferNotice(NoticeBar *notices, QObject *parent);
    ~TransferNotice() override;

    /** Tells of a transfer that is over, in the place of the one before. */
    void tell(const TransferResult &result, const DriveInfo &drive);

private:
    void tellText(const QString &text);
    void offerEject(const QString &text);
    void eject();
    void tellFailure(DriveEjector::Failure failure, const QString &systemText);

    NoticeBar *m_notices;
    QString m_driveName;
    std::unique_ptr<DriveEjector> m_ejector;
    std::unique_ptr<StatusActivity> m_activity;
};
