#pragma once

#include "base/threads/Mailbox.h"
#include "drives/DriveInfo.h"
#include "drives/VolumeSource.h"

#include <optional>
#include <QElapsedTimer>
#include <QList>
#include <QObject>

/**
 * Finds the drives that designs can be copied to. Each is asked on a thread of its own, since
 * a dead or sleeping one may hold up whoever asks for as long as it likes; the others are told
 * of without it. At most one question to a drive is under way; one that never gets its answer
 * is left behind.
 */
class DrivePoller : public QObject
{
    Q_OBJECT

public:
    explicit DrivePoller(VolumeSource volumes, QObject *parent = nullptr);
    ~DrivePoller() override;

    /** How long a drive may take to answer until it counts as dead. */
    void setPatience(int milliseconds) { m_patience = milliseconds; }

    /** Asks the drives that are mounted now, but those that owe an answer. */
    void poll();

signals:
    /**
     * The drives that have answered and can be copied to, in the order of the system; sent
     * with each poll and each answer.
     * @param looking whether a first answer is still hoped for
     */
    void drivesListed(const QList<DriveInfo> &drives, bool looking);

private:
    struct Question
    {
        Mount mount;
        QElapsedTimer asked;
        bool pending = false;
        std::optional<DriveInfo> answer; ///< the latest
    };

    Question questionTo(const Mount &mount) const;
    void ask(Question &question);
    void takeAnswer(const DriveInfo &drive);
    bool isDead(const Question &question) const;
    void tell();

    VolumeSource m_volumes;
    int m_patience;
    QList<Question> m_questions;
    Mailbox m_mailbox{this};
};
