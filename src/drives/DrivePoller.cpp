#include "drives/DrivePoller.h"

#include "base/threads/BackgroundThread.h"

#include <algorithm>

namespace {

constexpr int Patience = 3000; // milliseconds; a sleeping disk wakes up in that time

} // namespace

DrivePoller::DrivePoller(VolumeSource volumes, QObject *parent)
    : QObject(parent), m_volumes(std::move(volumes)), m_patience(Patience)
{
}

DrivePoller::~DrivePoller() = default;

void DrivePoller::poll()
{
    QList<Question> questions;
    const QList<Mount> mounts = m_volumes();
    for (const Mount &mount : mounts) {
        Question question = questionTo(mount);
        if (!question.pending)
            ask(question);
        questions.append(question);
    }
    m_questions = questions;
    tell();
}

DrivePoller::Question DrivePoller::questionTo(const Mount &mount) const
{
    const auto known =
        std::find_if(m_questions.begin(), m_questions.end(),
                     [&mount](const Question &question) { return question.mount == mount; });
    if (known != m_questions.end())
        return *known;
    Question question;
    question.mount = mount;
    return question;
}

void DrivePoller::ask(Question &question)
{
    question.asked.start();
    question.pending =
        BackgroundThread::tryStart([this, address = m_mailbox.address(), mount = question.mount] {
            const DriveInfo drive = DriveInfo::fromMount(mount);
            address.post([this, drive] { takeAnswer(drive); });
        });
}

void DrivePoller::takeAnswer(const DriveInfo &drive)
{
    for (Question &question : m_questions) {
        if (question.mount == drive.mount) {
            question.pending = false;
            question.answer = drive;
        }
    }
    tell();
}

bool DrivePoller::isDead(const Question &question) const
{
    return question.pending && question.asked.hasExpired(m_patience);
}

void DrivePoller::tell()
{
    QList<DriveInfo> drives;
    bool looking = false;
    for (const Question &question : std::as_const(m_questions)) {
        const bool answered = question.answer.has_value();
        if (answered && !isDead(question) && question.answer->mightBeUsbDrive())
            drives.append(*question.answer);
        looking = looking || (!answered && question.pending && !isDead(question));
    }
    emit drivesListed(drives, looking);
}
