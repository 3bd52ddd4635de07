#pragma once

#include "embroidery/EmbReader.h"

namespace Embroidery {

/**
 * Reads "hus": a header, a palette of chart indices, and the commands, x deltas
 * and y deltas of the stitches as three compressed streams.
 */
class HusReader : public EmbReader
{
public:
    /** A file that promises more stitches than this is refused. */
    static constexpr int MaximumStitchCount = 3000000;

    HusReader();

protected:
    using EmbReader::read;
    void read() override;

private:
    struct Streams
    {
        QByteArray commands;
        QByteArray x;
        QByteArray y;
    };

    void readPalette(int count);
    QByteArray readStream(qint64 length);
    static QByteArray husDecompressData(QByteArray *input, int size, int unused);
    void addStitches(const Streams &streams, int count);
};

} // namespace Embroidery
