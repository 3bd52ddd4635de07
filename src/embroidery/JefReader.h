#pragma once

#include "embroidery/JanomeReader.h"

namespace Embroidery {

/** Reads "jef": a header with a palette of chart indices, then pairs of bytes. */
class JefReader : public JanomeReader
{
public:
    JefReader();

protected:
    using JanomeReader::read;
    void read() override;

private:
    void readPalette(int count);
    bool control(int code, int x, int y) override;
};

} // namespace Embroidery
