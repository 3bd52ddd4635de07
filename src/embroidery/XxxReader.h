#pragma once

#include "embroidery/EmbReader.h"

namespace Embroidery {

/** Reads "xxx": a fixed header, a stitch stream and a palette behind it. */
class XxxReader : public EmbReader
{
public:
    XxxReader();

protected:
    using EmbReader::read;
    void read() override;

private:
    void readColors(int count);
    bool readRecord();
    bool readControl();
};

} // namespace Embroidery
