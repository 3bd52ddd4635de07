#pragma once

#include "embroidery/PecReader.h"

namespace Embroidery {

/**
 * Reads "pes": a header in one of several versions, and behind it, at an offset
 * that the header tells, a PEC block with all the stitches. Headers of versions
 * 5 and 6 carry the threads.
 */
class PesReader : public PecReader
{
public:
    /** Metadata keys that only this format has. */
    inline static const QString PROP_VERSION = QStringLiteral("version");
    inline static const QString PROP_IMAGE_FILE = QStringLiteral("image_file");

    PesReader();

protected:
    using PecReader::read;
    void read() override;

private:
    void readPESHeader();
    void readPESHeaderDefault();
    void readPESHeaderV4();
    void readPESHeaderV5();
    void readPESHeaderV6();
    void readDescriptions();
    void readThreads();
    void readThread();
    QString readPrefixedString();
    void skipTo(int offset);
};

} // namespace Embroidery
