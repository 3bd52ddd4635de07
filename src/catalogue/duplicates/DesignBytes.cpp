#include "catalogue/duplicates/DesignBytes.h"

#include "base/Error.h"
#include "catalogue/duplicates/DuplicateGroup.h"
#include "embroidery/ReadHelper.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace {

void open(QFile &file)
{
    const QFileInfo info(file.fileName());
    if (!info.exists())
        throw Error(DesignBytes::tr("The file is no longer there."));
    // Reading a device or a pipe might never end.
    if (!info.isFile())
        throw Error(DesignBytes::tr("This is not a file."));
    if (!file.open(QIODevice::ReadOnly))
        throw Error(file.errorString());
}

void expectHash(const QCryptographicHash &hash, const QFile &file, const DuplicateCandidate &design)
{
    if (file.error() != QFile::NoError)
        throw Error(file.errorString());
    if (hash.result() != design.hash)
        throw Error(DesignBytes::tr("The file has changed since the last scan."));
}

} // namespace

QByteArray DesignBytes::read(const DuplicateCandidate &design)
{
    QFile file(design.path);
    open(file);
    // One byte more than the engine takes, so that it tells what is too large.
    QByteArray bytes = file.read(Embroidery::ReadHelper::MaximumSize + 1);
    QCryptographicHash hash(QCryptographicHash::Md5);
    hash.addData(bytes);
    expectHash(hash, file, design);
    return bytes;
}

void DesignBytes::verify(const DuplicateCandidate &design)
{
    QFile file(design.path);
    open(file);
    QCryptographicHash hash(QCryptographicHash::Md5);
    if (!hash.addData(&file))
        throw Error(file.errorString());
    expectHash(hash, file, design);
}
