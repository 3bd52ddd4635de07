#include "catalogue/scan/DesignBytes.h"

#include "base/IAbortCheck.h"
#include "embroidery/ReadHelper.h"
#include <algorithm>
#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>

namespace {

/** Between two of them the reading can be stopped. */
constexpr qint64 PieceSize = qint64(1024) * 1024;
constexpr qint64 MaximumSize = Embroidery::ReadHelper::MaximumSize;

} // namespace

QByteArray DesignBytes::hash() const
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
}

DesignBytes DesignBytes::read(const QString &path, const IAbortCheck &abort)
{
    DesignBytes design;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        design.reason = file.errorString();
        design.vanished = !file.exists();
        return design;
    }
    design.size = file.size();
    design.modified = file.fileTime(QFileDevice::FileModificationTime).toSecsSinceEpoch();

    design.bytes.reserve(int(std::min(design.size, MaximumSize) + 1));
    QByteArray piece(int(std::min(design.size + 1, PieceSize)), Qt::Uninitialized);
    while (std::max<qint64>(design.size, design.bytes.size()) <= MaximumSize) {
        const qint64 count = file.read(piece.data(), piece.size());
        if (count < 0 || abort.abortState() != 0) {
            design.reason = file.errorString();
            return design;
        }
        if (count == 0) {
            design.state = Read;
            return design;
        }
        design.bytes.append(piece.constData(), int(count));
    }
    design.bytes.clear();
    design.state = TooLarge;
    return design;
}
