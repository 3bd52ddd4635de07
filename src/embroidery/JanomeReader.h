#pragma once

#include "embroidery/EmbReader.h"

namespace Embroidery {

/**
 * What "jef" and "sew" share: colours of the Janome chart, and stitches in pairs
 * of bytes, among which the byte 0x80 announces a control code with an operand.
 */
class JanomeReader : public EmbReader
{
protected:
    using EmbReader::EmbReader;
    using EmbReader::read;

    /** Adds a thread of the chart; an index past its end starts over. Not below 0. */
    void addChartThread(qint64 index);

    /** Reads from the cursor to the end of the data, and closes the design there. */
    void readStitches();

private:
    /** Acts on a control code, (x, y) being its operand; false if it ends the data. */
    virtual bool control(int code, int x, int y) = 0;
};

} // namespace Embroidery
