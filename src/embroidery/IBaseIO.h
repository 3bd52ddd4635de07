#pragma once

#include <QString>
#include <QVariant>

namespace Embroidery {

/** The settings of a reader: named values that its caller may set. */
class IBaseIO
{
public:
    IBaseIO() = default;
    IBaseIO(const IBaseIO &) = delete;
    IBaseIO &operator=(const IBaseIO &) = delete;
    virtual ~IBaseIO() = default;

    /** Stores @p value under @p key, replacing an earlier one. */
    virtual void set(const QString &key, const QVariant &value) = 0;

    /** The value under @p key; a null entry is inserted if there is none. */
    virtual QVariant get(const QString &key) = 0;

    /** The value under @p key, or @p defaultValue if there is none. */
    virtual QVariant get(const QString &key, const QVariant &defaultValue) = 0;
};

} // namespace Embroidery
