#include "cli/DesignFile.h"

#include "embroidery/EmbroideryIO.h"
#include "embroidery/IOException.h"
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace {

QString md5OfFile(const QString &name)
{
    QFile file(name);
    QCryptographicHash hash(QCryptographicHash::Md5);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        throw Embroidery::IOException(QStringLiteral("Failed to open file: ") + name);
    return QString::fromLatin1(hash.result().toHex());
}

} // namespace

DesignFile DesignFile::read(const QString &name)
{
    DesignFile file;
    file.m_name = name;
    const QFileInfo info(name);
    if (info.exists() && !info.isFile() && !info.isDir()) {
        // Reading a device or a pipe might never end.
        file.m_error = tr("Not a regular file: %1").arg(name);
        return file;
    }
    if (info.size() > LargestSize) {
        file.m_error = tr("File too large: %1").arg(name);
        return file;
    }
    try {
        const auto pattern = Embroidery::EmbroideryIO::readFile(name, {});
        file.m_md5 = md5OfFile(name);
        file.m_pattern = pattern;
    } catch (const Embroidery::IOException &exception) {
        file.m_error = exception.message;
    }
    return file;
}
