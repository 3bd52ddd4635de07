#include "embroidery/EmbThread.h"

#include <QColor>

namespace Embroidery {

namespace {

constexpr unsigned int Opaque = 0xFF000000U;

unsigned int opaqueColor(int r, int g, int b)
{
    return Opaque | static_cast<unsigned int>(r) << 16 |
           (static_cast<unsigned int>(g) & 255U) << 8 | (static_cast<unsigned int>(b) & 255U);
}

} // namespace

EmbThread::EmbThread(unsigned int rgb, const QString &description, const QString &catalogNumber,
                     const QString &brand, const QString &chart)
    : m_color(Opaque | rgb), m_description(description), m_catalogNumber(catalogNumber),
      m_brand(brand), m_chart(chart)
{
}

EmbThread::EmbThread(int r, int g, int b, const QString &description, const QString &catalogNumber,
                     const QString &brand, const QString &chart)
    : EmbThread(opaqueColor(r, g, b), description, catalogNumber, brand, chart)
{
}

QString EmbThread::getHexColor() const
{
    return QColor(m_color).name();
}

} // namespace Embroidery
