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
     * Fills `pattern` from `device`, which must be open for reading and stays
     * the caller's. Throws IOException; the pattern is then incomplete.
     */
    virtual void read(QSharedPointer<EmbPattern> &pattern, QIODevice *device) = 0;
};

} // namespace Embroidery
