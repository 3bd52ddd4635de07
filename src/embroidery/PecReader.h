#pragma once

#include "embroidery/EmbReader.h"

namespace Embroidery {

/**
 * Reads "pec": eight bytes of magic, which are not examined, and a block of a
 * label, a colour list, stitch records of variable length and thumbnails.
 */
class PecReader : public EmbReader
{
public:
    explicit PecReader(const QString &name = QStringLiteral("pec"));

protected:
    using EmbReader::read;
    void read() override;

    /** Reads a block from the cursor on. */
    void readPec();

private:
    void map_pec_colors(const char *colors, int count);
    void process_pec_colors(const char *colors, int count);
    void process_pec_table(const char *colors, int count);
    void readPecStitches();
    void readPecGraphics(int size, int stride, int count);
    static QString get_graphic_as_string(const QByteArray &bytes, int stride, char on, char off);
};

} // namespace Embroidery
