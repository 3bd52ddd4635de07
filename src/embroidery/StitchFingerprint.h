#pragma once

#include <QPointF>

namespace Embroidery {

class StitchPath;

/**
 * A few numbers about the way of the needle that hardly change when a design is saved in
 * another format: its extent, its length and its centre of gravity. A hundred thousand of
 * them fit into memory, where that many designs would not. Those that resemble each other are
 * worth a comparison of their paths.
 */
class StitchFingerprint
{
public:
    /** Of nothing; resembles nothing. */
    StitchFingerprint() = default;
    explicit StitchFingerprint(const StitchPath &path);

    bool isEmpty() const { return m_length <= 0; }

    /** Tenths of a millimetre. */
    double width() const { return m_width; }

    /** By how much the widths of two that resemble each other differ at most. */
    static double widthTolerance();

    bool resembles(const StitchFingerprint &other) const;

private:
    double m_width = 0;
    double m_height = 0;
    double m_length = 0;
    QPointF m_centre;
};

} // namespace Embroidery
