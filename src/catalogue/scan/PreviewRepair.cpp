#include "catalogue/scan/PreviewRepair.h"

#include "base/files/FileReplacement.h"
#include "catalogue/scan/DesignBytes.h"
#include "catalogue/scan/DesignPreparation.h"
#include "embroidery/EmbPattern.h"
#include "embroidery/EmbroideryIO.h"
#include "embroidery/IOException.h"
#include "preview/render/PngEncoder.h"
#include "preview/render/PreviewRenderer.h"
#include <new>

QImage PreviewRepair::repaint(const QByteArray &hash, const QString &previewPath,
                              const QString &designPath, const IAbortCheck &abort)
{
    try {
        const DesignBytes file = DesignBytes::read(designPath, abort);
        if (file.state != DesignBytes::Read || file.hash() != hash)
            return QImage();
        const auto pattern = Embroidery::EmbroideryIO::readByteArray(designPath, file.bytes);
        QImage image = PreviewRenderer().render(pattern, DesignPreparation::PreviewSize, abort);
        FileReplacement preview(previewPath, FileReplacement::AsBefore);
        // When it can't be written, the next look finds it damaged again.
        if (!image.isNull() && preview.write(PngEncoder::encode(image)))
            preview.commit(FileReplacement::UntilRestart);
        return image;
    } catch (const Embroidery::IOException &) {
        return QImage();
    } catch (const std::bad_alloc &) {
        return QImage();
    }
}
