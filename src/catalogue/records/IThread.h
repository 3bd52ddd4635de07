#pragma once

#include "properties/core/PropertyColor.h"
#include "properties/core/PropertyValues.h"

#include <QColor>
#include <QString>

/** One thread colour of a design. The setters assign without undo. */
class IThread
{
public:
    virtual QColor color() const = 0;
    virtual void setColor(const QColor &color) = 0;
    virtual PropertyColor *colorProp() const = 0;

    virtual QString colorName() const = 0;
    virtual void setColorName(const QString &name) = 0;
    virtual PropertyString *colorNameProp() const = 0;

    virtual QString chart() const = 0;
    virtual void setChart(const QString &chart) = 0;
    virtual PropertyString *chartProp() const = 0;

    virtual ~IThread() = default;
};
