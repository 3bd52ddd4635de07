#pragma once

#include "embroidery/EmbReader.h"

namespace Embroidery {

/**
 * Reads "dst": a header of 512 bytes of text in lines, then stitch records of
 * three bytes up to the end of the file. No bytes make it fail: a file that is
 * too short has no stitches.
 */
class DstReader : public EmbReader
{
public:
    DstReader();

    /** Bit @p n of @p byte, 0 or 1. */
    static constexpr int getbit(char byte, int n)
    {
        return (static_cast<unsigned char>(byte) >> n) & 1;
    }

    /** The displacements of a record, -121 to 121 tenths of a millimetre. */
    static int decodedx(char b0, char b1, char b2);
    static int decodedy(char b0, char b1, char b2);

protected:
    using EmbReader::read;
    void read() override;

private:
    void dstReadHeader();
    void parseDataStichHeader(const char *header);
    void processHeaderInfo(const QString &tag, const QString &value);
    void addThreadRecord(const QString &value);
    void dstReadStitches();
};

} // namespace Embroidery
