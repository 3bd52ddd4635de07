#pragma once

#include "catalogue/records/IThread.h"
#include "properties/core/PropertyStruct.h"

class Project;

/** A thread of a record: the children of one "thread" element. */
class Thread : public IThread, public PropertyStruct
{
public:
    explicit Thread(Project *project);

    QColor color() const override { return m_color->value(); }
    void setColor(const QColor &color) override;
    PropertyColor *colorProp() const override { return m_color; }

    QString colorName() const override { return m_colorName->value(); }
    void setColorName(const QString &name) override;
    PropertyString *colorNameProp() const override { return m_colorName; }

    QString chart() const override { return m_chart->value(); }
    void setChart(const QString &chart) override;
    PropertyString *chartProp() const override { return m_chart; }

private:
    PropertyColor *m_color;
    PropertyString *m_colorName;
    PropertyString *m_chart;
};
