#pragma once

#include "embroidery/EmbReader.h"

namespace Embroidery {

/** Reads "exp": pairs of bytes without a header and without colours. */
class ExpReader : public EmbReader
{
public:
    ExpReader();

protected:
    using EmbReader::read;
    void read() override;

private:
    void control(int code, int x, int y);
};

} // namespace Embroidery
