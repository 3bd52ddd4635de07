#include "cli/ThumbnailRun.h"

#include "base/Error.h"
#include "base/threads/OrderedWorkers.h"
#include "base/threads/ResponsiveWait.h"
#include "cli/Console.h"
#include "cli/DesignFile.h"
#include "cli/DesignPicture.h"
#include "cli/ExitStatus.h"
#include "cli/Interrupt.h"
#include "cli/OutputFile.h"
#include <chrono>
#include <QCryptographicHash>
#include <QFileInfo>
#include <QThread>

namespace {

constexpr qint64 WorkersMemory = qint64(256) * 1024 * 1024;
constexpr qint64 DesignMemoryPerByte = 32; // of the file: its points and polylines
constexpr std::chrono::milliseconds LastMoment(40);

QString fileName(const IFile &file)
{
    return QFileInfo(file.absoluteFilePath()).fileName();
}

/** Of designs that no scan has read the content is not known: each is taken for another. */
QByteArray contentOf(const IFile &file)
{
    const QByteArray hash = file.contentHash();
    return hash.isEmpty()
               ? QCryptographicHash::hash(file.absoluteFilePath().toUtf8(), QCryptographicHash::Md5)
               : hash;
}

} // namespace

struct ThumbnailRun::Job
{
    QStringList designs; ///< copies, of which any will do
    QString picture;
    qint64 need;

    qint64 memoryNeed() const { return need; }
};

struct ThumbnailRun::Painted
{
    QByteArray png; ///< empty when none of the designs could be painted
    QStringList errors;

    qint64 memoryNeed() const { return png.size(); }
};

ThumbnailRun::ThumbnailRun(const QString &folder, const DesignPicture &picture, bool replace,
                           const Files &catalogue)
    : m_folder(folder), m_picture(picture), m_replace(replace)
{
    for (const auto &file : catalogue)
        m_contents[fileName(*file).toCaseFolded()].insert(contentOf(*file));
}

/** Where designs differ but not their names the content is in it too. */
QString ThumbnailRun::pictureName(const IFile &file) const
{
    const QString name = fileName(file);
    if (m_contents.value(name.toCaseFolded()).size() <= 1)
        return name + QStringLiteral(".png");
    return QStringLiteral("%1.%2.png").arg(name, QString::fromLatin1(contentOf(file).toHex()));
}

void ThumbnailRun::paint(const Files &files, IProgressAbortListener &progress)
{
    const std::vector<Job> todo = jobs(files);
    if (todo.empty())
        return;
    OrderedWorkers<Job, Painted> workers(
        todo,
        [picture = m_picture](const Job &job, const IAbortCheck &abort) {
            return paintOne(picture, job, abort);
        },
        {QThread::idealThreadCount(), WorkersMemory});
    progress.setSteps(int(todo.size()));
    for (const Job &job : todo) {
        progress.proceed(QFileInfo(job.picture).fileName());
        const auto painted = waitResponsively(
            progress, [&workers](auto patience) { return workers.take(patience); });
        if (painted)
            write(job, *painted);
        if (progress.abortState() != 0)
            break;
    }
    workers.abort(LastMoment);
}

std::vector<ThumbnailRun::Job> ThumbnailRun::jobs(const Files &files)
{
    std::vector<Job> todo;
    QHash<QString, std::size_t> indexes;
    for (const auto &file : files) {
        const QString picture = m_folder + QLatin1Char('/') + pictureName(*file);
        if (indexes.contains(picture)) {
            todo[indexes.value(picture)].designs.append(file->absoluteFilePath());
        } else if (!m_replace && QFileInfo::exists(picture)) {
            ++m_kept;
        } else {
            indexes.insert(picture, todo.size());
            const qint64 need = file->fileSize() * DesignMemoryPerByte + m_picture.memoryNeed();
            todo.push_back({{file->absoluteFilePath()}, picture, need});
        }
    }
    return todo;
}

ThumbnailRun::Painted ThumbnailRun::paintOne(const DesignPicture &picture, const Job &job,
                                             const IAbortCheck &abort)
{
    Painted painted;
    for (const QString &design : job.designs) {
        try {
            const DesignFile file = DesignFile::read(design);
            if (!file.isReadable())
                throw Error(QStringLiteral("%1: %2").arg(design, file.error()));
            painted.png = picture.paint(file, abort);
            return painted;
        } catch (const Error &error) {
            painted.errors.append(error.toString());
        }
    }
    return painted;
}

void ThumbnailRun::write(const Job &job, const Painted &painted)
{
    m_failures += painted.errors;
    if (painted.png.isEmpty())
        return;
    m_kept += job.designs.size() - painted.errors.size() - 1;
    try {
        OutputFile::check(job.picture, job.designs, m_replace);
        OutputFile::write(job.picture, painted.png);
        ++m_painted;
    } catch (const Error &error) {
        m_failures.append(error.toString());
    }
}

int ThumbnailRun::report() const
{
    for (const QString &failure : m_failures)
        Console::reportError(failure);
    StandardOutput output;
    output.writeLine(QStringLiteral("painted %1, kept %2, failed %3")
                         .arg(m_painted)
                         .arg(m_kept)
                         .arg(m_failures.size()));
    const bool written = output.flush();
    if (Interrupt::received() != 0)
        return SignalReceived + Interrupt::received();
    return written && m_failures.isEmpty() ? Success : Failure;
}
