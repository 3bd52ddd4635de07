#include "embroidery/EmbThreadPec.h"

#include "embroidery/ThreadChart.h"

namespace Embroidery {

namespace {

// Names are those of the maker's chart, with its misspellings and repeats.
constexpr ChartEntry Chart[] = {
    {0x000000, "Unknown"},
    {0x0E1F7C, "Prussian Blue"},
    {0x0A55A3, "Blue"},
    {0x008777, "Teal Green"},
    {0x4B6BAF, "Cornflower Blue"},
    {0xED171F, "Red"},
    {0xD15C00, "Reddish Brown"},
    {0x913697, "Magenta"},
    {0xE49ACB, "Light Lilac"},
    {0x915FAC, "Lilac"},
    {0x9ED67D, "Mint Green"},
    {0xE8A900, "Deep Gold"},
    {0xFEBA35, "Orange"},
    {0xFFFF00, "Yellow"},
    {0x70BC1F, "Lime Green"},
    {0xBA9800, "Brass"},
    {0xA8A8A8, "Silver"},
    {0x7D6F00, "Russet Brown"},
    {0xFFFFB3, "Cream Brown"},
    {0x4F5556, "Pewter"},
    {0x000000, "Black"},
    {0x0B3D91, "Ultramarine"},
    {0x770176, "Royal Purple"},
    {0x293133, "Dark Gray"},
    {0x2A1301, "Dark Brown"},
    {0xF64A8A, "Deep Rose"},
    {0xB27624, "Light Brown"},
    {0xFCBBC5, "Salmon Pink"},
    {0xFE370F, "Vermillion"},
    {0xF0F0F0, "White"},
    {0x6A1C8A, "Violet"},
    {0xA8DDC4, "Seacrest"},
    {0x2584BB, "Sky Blue"},
    {0xFEB343, "Pumpkin"},
    {0xFFF36B, "Cream Yellow"},
    {0xD0A660, "Khaki"},
    {0xD15400, "Clay Brown"},
    {0x66BA49, "Leaf Green"},
    {0x134A46, "Peacock Blue"},
    {0x878787, "Gray"},
    {0xD8CCC6, "Warm Gray"},
    {0x435607, "Dark Olive"},
    {0xFDD9DE, "Flesh Pink"},
    {0xF993BC, "Pink"},
    {0x003822, "Deep Green"},
    {0xB2AFD4, "Lavender"},
    {0x686AB0, "Wisteria Violet"},
    {0xEFE3B9, "Beige"},
    {0xF73866, "Carmine"},
    {0xB54B64, "Amber Red"},
    {0x132B1A, "Olive Green"},
    {0xC70156, "Dark Fuschia"},
    {0xFE9E32, "Tangerine"},
    {0xA8DEEB, "Light Blue"},
    {0x00673E, "Emerald Green"},
    {0x4E2990, "Purple"},
    {0x2F7E20, "Moss Green"},
    {0xFFCCCC, "Flesh Pink"},
    {0xFFD911, "Harvest Gold"},
    {0x095BA6, "Electric Blue"},
    {0xF0F970, "Lemon Yellow"},
    {0xE3F35B, "Fresh Green"},
    {0xFF9900, "Orange"},
    {0xFFF08D, "Cream Yellow"},
    {0xFFC8C8, "Applique"},
};

} // namespace

EmbThreadPec::EmbThreadPec(int r, int g, int b, const QString &description,
                           const QString &catalogNumber)
    : EmbThread(r, g, b, description, catalogNumber, QStringLiteral("Brother"),
                QStringLiteral("Brother"))
{
}

QSharedPointer<EmbThreadPec> EmbThreadPec::create(int r, int g, int b, const QString &description,
                                                  const QString &catalogNumber)
{
    return QSharedPointer<EmbThreadPec>(new EmbThreadPec(r, g, b, description, catalogNumber));
}

QList<QSharedPointer<EmbThread>> EmbThreadPec::getThreadSet()
{
    static const QList<QSharedPointer<EmbThread>> threads =
        buildChart<EmbThreadPec>(Chart, ChartNumbers::Index);
    return threads;
}

} // namespace Embroidery
