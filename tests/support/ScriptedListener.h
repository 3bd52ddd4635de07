#pragma once

#include "base/IProgressAbortListener.h"
#include <functional>
#include <QList>
#include <QString>
#include <QStringList>

/** Notes what long work reports, and lets a test step in at each report and while it waits. */
class ScriptedListener : public IProgressAbortListener
{
public:
    void setSteps(int count) override
    {
        steps.append(count);
        if (onSetSteps)
            onSetSteps(count);
    }
    void proceed(const QString &text) override
    {
        texts.append(text);
        if (onProceed)
            onProceed(text);
    }
    void stayResponsive() override
    {
        if (onWait)
            onWait();
    }
    int abortState() const override { return aborted ? 2 : 0; }

    QList<int> steps;
    QStringList texts;
    std::function<void(int)> onSetSteps;
    std::function<void(const QString &)> onProceed;
    std::function<void()> onWait;
    bool aborted = false;
};
