#pragma once

#include "embroidery/EmbReader.h"

namespace Embroidery {

/** Reads "jef": a header with a palette of chart indices, then pairs of bytes. */
class JefReader : public EmbReader
{
public:
    JefReader();

protected:
    using EmbReader::read;
    void read() override;

private:
    void readPalette(int count);
    void readStitches();
    bool control(int code, int x, int y);
};

} // namespace Embroidery
