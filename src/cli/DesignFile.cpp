#include "cli/DesignFile.h"

#include "cli/LocalPath.h"
#include "embroidery/EmbroideryIO.h"
#include "embroidery/IOException.h"
#include "embroidery/ReadHelper.h"
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

using Embroidery::IOException;

namespace {

/** The bytes of the file; of one that the engine refuses for its size no more than it takes. */
QByteArray bytesOf(const QString &name)
{
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
