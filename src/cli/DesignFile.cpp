#include "cli/DesignFile.h"

#include "cli/LocalPath.h"
#include "cli/RawName.h"
#include "embroidery/EmbroideryIO.h"
#include "embroidery/IOException.h"
#include "embroidery/ReadHelper.h"
#include <fcntl.h>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <sys/stat.h>

using Embroidery::IOException;

namespace {

/** The same of a file whose name Qt cannot spell. */
QByteArray bytesOfRaw(const QString &name)
{
    const QByteArray path = RawName::encoded(name);
    struct stat facts;
    if (stat(path.constData(), &facts) == 0 && !S_ISREG(facts.st_mode))
        throw IOException(QStringLiteral("Not a regular file: ") + name);
    const int descriptor = open(path.constData(), O_RDONLY | O_CLOEXEC);
    QFile file;
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle))
        throw IOException(QStringLiteral("Failed to open file: ") + name);
    return file.read(Embroidery::ReadHelper::MaximumSize + 1);
}

/** The bytes of the file; of one that the engine refuses for its size no more than it takes. */
QByteArray bytesOf(const QString &name)
{
    if (RawName::isRaw(name))
        return bytesOfRaw(name);
    const QString path = LocalPath::of(name);
    const QFileInfo info(path);
    // Reading a device or a pipe might never end.
    if (info.exists() && !info.isFile() && !info.isDir())
        throw IOException(QStringLiteral("Not a regular file: ") + name);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw IOException(QStringLiteral("Failed to open file: ") + name);
    return file.read(Embroidery::ReadHelper::MaximumSize + 1);
}

} // namespace

DesignFile DesignFile::read(const QString &name)
{
    DesignFile file;
    file.m_name = name;
    try {
        const QByteArray bytes = bytesOf(name);
        file.m_pattern = Embroidery::EmbroideryIO::readByteArray(name, bytes);
        file.m_md5 =
            QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex());
    } catch (const IOException &exception) {
        file.m_error = exception.message;
    }
    return file;
}
