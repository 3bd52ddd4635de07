#include "embroidery/EmbThreadJanome.h"

#include "embroidery/ThreadChart.h"

namespace Embroidery {

namespace {

// Names are those of the maker's chart, with its misspellings and repeats.
constexpr ChartEntry Chart[] = {
    {0x000000, "Unknown"},       {0x000000, "Black"},
    {0xFFFFFF, "White"},         {0xFFFF17, "Sunflower"},
    {0xFAA060, "Hazel"},         {0x5C7649, "Green Dust / Olive Green"},
    {0x40C030, "Green"},         {0x65C2C8, "Sky"},
    {0xAC80BE, "Purple"},        {0xF5BCCB, "Pink"},
    {0xFF0000, "Red"},           {0xC08000, "Brown"},
    {0x0000F0, "Blue"},          {0xE4C35D, "Gold"},
    {0xA52A2A, "Dark Brown"},    {0xD5B0D4, "Pale Violet"},
    {0xFCF294, "Pale Yellow"},   {0xF0D0C0, "Pale Pink"},
    {0xFFC000, "Peach"},         {0xC9A480, "Beige"},
    {0x9B3D4B, "Wine Red"},      {0xA0B8CC, "Pale Sky"},
    {0x7FC21C, "Yellow Green"},  {0xB9B9B9, "Silver Grey"},
    {0xA0A0A0, "Grey"},          {0x98D6BD, "Pale Aqua"},
    {0xB8F0F0, "Baby Blue"},     {0x368BA0, "Powder Blue"},
    {0x4F83AB, "Bright Blue"},   {0x386A91, "Slate Blue"},
    {0x00206B, "Nave Blue"},     {0xE5C5CA, "Salmon Pink"},
    {0xF9676B, "Coral"},         {0xE3311F, "Burnt Orange"},
    {0xE2A188, "Cinnamon"},      {0xB59474, "Umber"},
    {0xE4CF99, "Blonde"},        {0xE1CB00, "Sunflower"},
    {0xE1ADD4, "Orchid Pink"},   {0xC3007E, "Peony Purple"},
    {0x80004B, "Burgundy"},      {0xA060B0, "Royal Purple"},
    {0xC04020, "Cardinal Red"},  {0xCAE0C0, "Opal Green"},
    {0x899856, "Moss Green"},    {0x00AA00, "Meadow Green"},
    {0x218A21, "Dark Green"},    {0x5DAE94, "Aquamarine"},
    {0x4CBF8F, "Emerald Green"}, {0x007772, "Peacock Green"},
    {0x707070, "Dark Grey"},     {0xF2FFFF, "Ivory White"},
    {0xB15818, "Hazel"},         {0xCB8A07, "Toast"},
    {0xF7927B, "Salmon"},        {0x98692D, "Cocoa Brown"},
    {0xA27148, "Sienna"},        {0x7B554A, "Sepia"},
    {0x4F3946, "Dark Sepia"},    {0x523A97, "Violet Blue"},
    {0x0000A0, "Blue Ink"},      {0x0096DE, "Solar Blue"},
    {0xB2DD53, "Green Dust"},    {0xFA8FBB, "Crimson"},
    {0xDE649E, "Floral Pink"},   {0xB55066, "Wine"},
    {0x5E5747, "Olive Drab"},    {0x4C881F, "Meadow"},
    {0xE4DC79, "Canary Yellow"}, {0xCB8A1A, "Toast"},
    {0xC6AA42, "Beige"},         {0xECB02C, "Honey Dew"},
    {0xF88040, "Tangerine"},     {0xFFE505, "Ocean Blue"},
    {0xFA7A7A, "Sepia"},         {0x6BE000, "Royal Purple"},
    {0x386CAE, "Yellow Ocher"},  {0xD0BAB0, "Beige Grey"},
    {0xE3BE81, "Bamboo"},
};

} // namespace

EmbThreadJanome::EmbThreadJanome(int r, int g, int b, const QString &description,
                                 const QString &catalogNumber)
    : EmbThread(r, g, b, description, catalogNumber, QStringLiteral("Janome"),
                QStringLiteral("Janome"))
{
}

QSharedPointer<EmbThreadJanome> EmbThreadJanome::create(int r, int g, int b,
                                                        const QString &description,
                                                        const QString &catalogNumber)
{
    return QSharedPointer<EmbThreadJanome>(
        new EmbThreadJanome(r, g, b, description, catalogNumber));
}

QList<QSharedPointer<EmbThread>> EmbThreadJanome::getThreadSet()
{
    static const QList<QSharedPointer<EmbThread>> threads =
        buildChart<EmbThreadJanome>(Chart, ChartNumbers::Index);
    return threads;
}

} // namespace Embroidery
