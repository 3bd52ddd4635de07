#pragma once

#include <QString>

namespace Embroidery {

/**
 * The one failure of the engine. Thrown by value, caught by reference; the
 * design under construction is dropped.
 */
class IOException
{
public:
    explicit IOException(const QString &text) : message(text) {}
    IOException(const IOException &) = default;
    IOException &operator=(const IOException &) = default;
    virtual ~IOException() = default;

    /** What went wrong, in the source language. */
    QString message;
};

} // namespace Embroidery
