#pragma once

#include "embroidery/IBaseIO.h"

#include <QSharedPointer>

class QIODevice;

namespace Embroidery {

class EmbPattern;

/** Reads one design format. An object serves one read, on one thread. */
class IReader : public IBaseIO
{
public:
    /**
     * Fills @p pattern from @p device, which must be open for reading and stays
     * the caller's. @throws IOException; the pattern is then incomplete
     */
    virtual void read(QSharedPointer<EmbPattern> &pattern, QIODevice *device) = 0;
};

} // namespace Embroidery
