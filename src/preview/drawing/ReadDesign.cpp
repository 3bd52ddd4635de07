#include "preview/drawing/ReadDesign.h"

#include "embroidery/EmbroideryIO.h"
#include "embroidery/IOException.h"
#include "embroidery/ReadHelper.h"

#include <new>
#include <QFile>
#include <QFileInfo>

namespace {

QString problemOf(const QFile &file)
{
    return ReadDesign::tr("The file cannot be read: %1").arg(file.errorString());
}

ReadDesign failure(const QString &path, const QString &error)
{
    return {path, {}, error};
}

ReadDesign decoded(const QString &path, const QByteArray &bytes)
{
    const auto order = QSharedPointer<const SewingOrder>(
        new SewingOrder(Embroidery::EmbroideryIO::readByteArray(path, bytes)));
    if (order->threadUses().isEmpty())
        return failure(path, ReadDesign::tr("There are no stitches in this design."));
    return {path, order, {}};
}

ReadDesign readFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return failure(path, ReadDesign::tr("The file is no longer there."));
    // Reading a device or a pipe might never end.
    if (!info.isFile())
        return failure(path, ReadDesign::tr("This is not a file."));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failure(path, problemOf(file));
    // One byte more than the engine takes, so that it tells what is too large.
    const QByteArray bytes = file.read(Embroidery::ReadHelper::MaximumSize + 1);
    if (file.error() != QFile::NoError)
        return failure(path, problemOf(file));
    return decoded(path, bytes);
}

} // namespace

ReadDesign ReadDesign::fromFile(const QString &path)
{
    try {
        return readFile(path);
    } catch (const Embroidery::IOException &exception) {
        return failure(path, tr("The file is damaged or not what its name says.") +
                                 QLatin1Char('\n') + exception.message);
    } catch (const std::bad_alloc &) {
        return failure(path, tr("There is not enough memory for this design."));
    }
}
