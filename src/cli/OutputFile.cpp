#include "cli/OutputFile.h"

#include "base/files/FileTools.h"
#include "base/GlobalSettings.h"
#include "cli/CommandError.h"
#include "cli/LocalPath.h"
#include "embroidery/EmbroideryIO.h"
#include <algorithm>
#include <QDir>
#include <QFileInfo>
#include <sys/stat.h>

namespace {

bool hasDesignExtension(const QString &path)
{
    return QDir::match(Embroidery::EmbroideryIO::supportedFormats(), QFileInfo(path).fileName());
}

/** Also by another name, such as that of a link. */
bool isSameFile(const QString &one, const QString &other)
{
    struct stat first;
    struct stat second;
    return stat(QFile::encodeName(one).constData(), &first) == 0 &&
           stat(QFile::encodeName(other).constData(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

} // namespace

void OutputFile::check(const QString &name, const QStringList &sources, bool replace)
{
    const QString path = LocalPath::of(name);
    const QFileInfo info(path);
    if (hasDesignExtension(path) || (info.exists() && hasDesignExtension(info.canonicalFilePath())))
        throw UsageError(tr("The output must not bear the name of a design: %1").arg(name));
    const QStringList kept = sources + QStringList(GlobalSettings().catalogueFilePath());
    if (std::any_of(kept.begin(), kept.end(),
                    [&](const QString &source) { return isSameFile(path, LocalPath::of(source)); }))
        throw UsageError(tr("The output must not replace what is read: %1").arg(name));
    if (info.isDir())
        throw Error(tr("'%1' is a folder").arg(name));
    if (info.exists() && !replace)
        throw Error(tr("'%1' exists; --force replaces it").arg(name));
}

void OutputFile::write(const QString &name, const QByteArray &bytes,
                       FileReplacement::Durability durability, FileReplacement::Access access)
{
    const QString path = LocalPath::of(name);
    const QString folder = QFileInfo(path).path();
    // A folder that is made by mistake would be harder to find than an error.
    if (!QFileInfo::exists(folder))
        throw Error(tr("Failed to write %1: the folder '%2' is not there").arg(name, folder));
    FileTools::writeAll(path, bytes, FileTools::Binary, durability, access);
}
