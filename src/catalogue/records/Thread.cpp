#include "catalogue/records/Thread.h"

#include "catalogue/records/Project.h"

Thread::Thread(Project *project) : PropertyStruct(project, QStringLiteral("thread"), {})
{
    reserveProperties(3);
    m_color = addProperty(new PropertyColor(project, QStringLiteral("color"), QColor()));
    m_colorName = addProperty(new PropertyString(project, QStringLiteral("color_name"), {}));
    m_chart = addProperty(new PropertyString(project, QStringLiteral("chart"), {}));
}

void Thread::setColor(const QColor &color)
{
    m_color->setValueWithoutUndoAndAnnounceChange(color);
}

void Thread::setColorName(const QString &name)
{
    m_colorName->setValueWithoutUndoAndAnnounceChange(name);
}

void Thread::setChart(const QString &chart)
{
    m_chart->setValueWithoutUndoAndAnnounceChange(chart);
}
