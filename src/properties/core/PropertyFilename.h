#pragma once

#include "properties/core/GFileName.h"
#include "properties/core/PropertyT.h"

class PropertyFilename : public PropertyT<GFileName>
{
public:
    PropertyFilename(GProject *project, const QString &name, const QString &defaultPath);
    void acceptVisitor(PropertyVisitor *visitor) override;
};
