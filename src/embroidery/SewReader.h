#pragma once

#include "embroidery/JanomeReader.h"

namespace Embroidery {

/** Reads "sew": a palette of chart indices, and pairs of bytes at a fixed offset. */
class SewReader : public JanomeReader
{
public:
    SewReader();

protected:
    using JanomeReader::read;
    void read() override;

private:
    void readPalette();
    bool control(int code, int x, int y) override;
};

} // namespace Embroidery
