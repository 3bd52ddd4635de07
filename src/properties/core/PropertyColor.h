#pragma once

#include "properties/core/PropertyT.h"

#include <QColor>

/** Alpha is kept in memory but not in files. */
class PropertyColor : public PropertyT<QColor>
{
public:
    using PropertyT::PropertyT;
    void acceptVisitor(PropertyVisitor *visitor) override;
};
