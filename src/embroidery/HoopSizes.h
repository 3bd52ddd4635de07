#pragma once

#include <optional>
#include <QSizeF>
#include <QStringList>

namespace Embroidery {

/** The sides of the hoops of common machines: a hoop has any two of them. */
class HoopSizes
{
public:
    HoopSizes() = delete;

    /** The lengths as a machine's maker writes them, in inches or millimetres, shortest first. */
    static QStringList sides(bool imperial);

    /**
     * The smallest hoop that holds a design of @p design millimetres, in millimetres;
     * none where not even the largest does. Each side is the shortest that is long
     * enough, so that no other hoop is smaller, lying or standing.
     */
    static std::optional<QSizeF> smallestAround(const QSizeF &design, bool imperial);
};

} // namespace Embroidery
