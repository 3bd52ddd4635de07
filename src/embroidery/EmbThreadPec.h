#pragma once

#include "embroidery/EmbThread.h"

#include <QList>
#include <QSharedPointer>

namespace Embroidery {

/** A thread of the chart of Brother. */
class EmbThreadPec : public EmbThread
{
public:
    /** @p r, @p g and @p b are 0 to 255. */
    EmbThreadPec(int r, int g, int b, const QString &description, const QString &catalogNumber);

    static QSharedPointer<EmbThreadPec> create(int r, int g, int b, const QString &description,
                                               const QString &catalogNumber);

    /**
     * The chart, 65 threads in the order of their index. It is built once, and every
     * call returns the same thread objects, which nobody changes. Safe in any thread.
     */
    static QList<QSharedPointer<EmbThread>> getThreadSet();
};

} // namespace Embroidery
