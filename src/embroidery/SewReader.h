#pragma once

#include "embroidery/EmbReader.h"

namespace Embroidery {

/** Reads "sew": a palette of chart indices, and pairs of bytes at a fixed offset. */
class SewReader : public EmbReader
{
public:
    SewReader();

protected:
    using EmbReader::read;
    void read() override;

private:
    void readPalette();
    void readStitches();
    void control(int code, int x, int y);
};

} // namespace Embroidery
