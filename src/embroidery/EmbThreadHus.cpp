#include "embroidery/EmbThreadHus.h"

#include "embroidery/ThreadChart.h"

namespace Embroidery {

namespace {

// Names are those of the maker's chart, with its misspellings and repeats.
constexpr ChartEntry Chart[] = {
    {0x000000, "Black"},        {0x0000FF, "Blue"},        {0x00FF00, "Light Green"},
    {0xFF0000, "Red"},          {0xFF00FF, "Purple"},      {0xFFFF00, "Yellow"},
    {0x7F7F7F, "Gray"},         {0x339AFF, "Light Blue"},  {0x33CC66, "Green"},
    {0xFF7F00, "Orange"},       {0xFFA0B4, "Pink"},        {0x994B00, "Brown"},
    {0xFFFFFF, "White"},        {0x00007F, "Dark Blue"},   {0x007F00, "Dark Green"},
    {0x7F0000, "Dark Red"},     {0xFF7F7F, "Light Red"},   {0x7F007F, "Dark Purple"},
    {0xFF7FFF, "Light Purple"}, {0xC8C800, "Dark Yellow"}, {0xFFFF99, "Light Yellow"},
    {0x3C3C3C, "Dark Gray"},    {0xC0C0C0, "Light Gray"},  {0xE83F00, "Dark Orange"},
    {0xFFA541, "Light Orange"}, {0xFF667A, "Dark Pink"},   {0xFFCCCC, "Light Pink"},
    {0x732800, "Dark Brown"},   {0xAF5A0A, "Light Brown"},
};

} // namespace

EmbThreadHus::EmbThreadHus(int r, int g, int b, const QString &description,
                           const QString &catalogNumber)
    : EmbThread(r, g, b, description, catalogNumber, QStringLiteral("Husqvarna"),
                QStringLiteral("Husqvarna"))
{
}

QSharedPointer<EmbThreadHus> EmbThreadHus::create(int r, int g, int b, const QString &description,
                                                  const QString &catalogNumber)
{
    return QSharedPointer<EmbThreadHus>(new EmbThreadHus(r, g, b, description, catalogNumber));
}

QList<QSharedPointer<EmbThread>> EmbThreadHus::getThreadSet()
{
    static const QList<QSharedPointer<EmbThread>> threads =
        buildChart<EmbThreadHus>(Chart, ChartNumbers::None);
    return threads;
}

} // namespace Embroidery
