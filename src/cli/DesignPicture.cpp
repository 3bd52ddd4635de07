#include "cli/DesignPicture.h"

#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "preview/render/PngEncoder.h"
#include "preview/render/PreviewRenderer.h"
#include <QImage>

namespace {

constexpr int LargestPicture = 10000;

int parseSize(const QString &text)
{
    bool valid = false;
    const int size = text.toInt(&valid);
    if (!valid || size < 1 || size > LargestPicture)
        throw UsageError(
            DesignPicture::tr("The size must be a number from 1 to %1.").arg(LargestPicture));
    return size;
}

} // namespace

QList<QCommandLineOption> DesignPicture::options()
{
    return {
        {QStringLiteral("size"), tr("Longer side of the picture in pixels; 400 if not given."),
         QStringLiteral("N"), QStringLiteral("400")},
        {QStringLiteral("card"), tr("Paint a square card: on white, with a margin.")},
    };
}

DesignPicture::DesignPicture(const CommandLine &line)
    : m_size(parseSize(line.value("size"))), m_asCard(line.isSet("card"))
{
}

QByteArray DesignPicture::paint(const DesignFile &file, const IAbortCheck &abort) const
{
    PreviewRenderer renderer;
    const QImage image = m_asCard ? renderer.renderCard(file.pattern(), m_size, abort)
                                  : renderer.render(file.pattern(), m_size, abort);
    if (image.isNull())
        throw Error(tr("%1: The design has no extent to show.").arg(file.name()));
    return PngEncoder::encode(image);
}
