#include "cli/ThumbnailRun.h"

#include "base/Error.h"
#include "cli/Console.h"
#include "cli/DesignFile.h"
#include "cli/DesignPicture.h"
#include "cli/ExitStatus.h"
#include "cli/Interrupt.h"
#include "cli/OutputFile.h"
#include <QCryptographicHash>
#include <QFileInfo>

namespace {

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
    progress.setSteps(files.size());
    for (int i = 0; i < files.size() && progress.abortState() == 0; ++i) {
        const QString name = pictureName(*files.at(i));
        progress.proceed(name);
        paintOne(files.at(i)->absoluteFilePath(), m_folder + QLatin1Char('/') + name);
    }
}

void ThumbnailRun::paintOne(const QString &design, const QString &picture)
{
    if (!m_replace && QFileInfo::exists(picture)) {
        ++m_kept;
        return;
    }
    try {
        OutputFile::check(picture, {design}, m_replace);
        const DesignFile file = DesignFile::read(design);
        if (!file.isReadable())
            throw Error(QStringLiteral("%1: %2").arg(design, file.error()));
        OutputFile::write(picture, m_picture.paint(file));
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
