#include "base/Error.h"
#include "base/files/DirectoryScanner.h"
#include "base/files/FileTools.h"
#include "embroidery/EmbroideryIO.h"
#include "embroidery/IOException.h"
#include "preview/render/PreviewRenderer.h"
#include "support/Stopwatch.h"
#include <cmath>
#include <QCryptographicHash>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

/*
 * Reads, hashes, parses, paints and encodes every design below a folder in the plainest
 * way: one thread, one after the other, the toolkit's painter and its image writer. It
 * keeps no catalogue. This is what the import is measured against, so it stays as it is.
 */
namespace {

constexpr double PreviewSize = 400.0;

QImage paint(Embroidery::EmbPattern &pattern)
{
    const QList<Embroidery::StitchBlock> blocks = pattern.asStitchBlock();
    const QRectF rect = pattern.boundingRect();
    const double scale = PreviewSize / std::max(rect.width(), rect.height());
    QImage image(int(std::ceil(rect.width() * scale)), int(std::ceil(rect.height() * scale)),
                 QImage::Format_ARGB32);
    if (image.isNull())
        return image;
    image.fill(0);
    QPainter painter(&image);
    painter.translate(-std::floor(rect.x() * scale), -std::floor(rect.y() * scale));
    painter.scale(scale, scale);
    PreviewRenderer renderer;
    for (const Embroidery::StitchBlock &block : blocks) {
        QPointF from = block.points.first();
        for (const QPointF &to : block.points.mid(1)) {
            renderer.drawThread(painter, from, to, QColor(block.thread->getRGB()));
            from = to;
        }
    }
    return image;
}

bool import(const QString &path, const QDir &previews)
{
    const QByteArray bytes = FileTools::readAll(path, FileTools::Binary);
    const QByteArray hash = QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
    try {
        const auto pattern = Embroidery::EmbroideryIO::readByteArray(path, bytes);
        const QString name = QString::fromLatin1(hash.toHex()) + QStringLiteral(".png");
        return paint(*pattern).save(previews.filePath(name));
    } catch (const Embroidery::IOException &) {
        return false;
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3 || !QDir().mkpath(arguments.at(2))) {
        std::fputs("usage: plain-pipeline DIR OUT\n", stderr);
        return 2;
    }
    const Stopwatch stopwatch;
    const QDir previews(arguments.at(2));
    const DirectoryScanner scanner(Embroidery::EmbroideryIO::supportedFormats(), {});
    int files = 0;
    for (const QString &path : scanner.findFilesRecursive(arguments.at(1)))
        files += import(path, previews) ? 1 : 0;
    stopwatch.print("plain pipeline", files);
    return 0;
}
