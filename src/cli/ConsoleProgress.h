#pragma once

#include "base/IProgressAbortListener.h"
#include <QElapsedTimer>
#include <QString>

/**
 * Shows the progress of long work as a bar on standard error when that is a
 * terminal, and passes the user's Ctrl-C on as the wish to cancel.
 */
class ConsoleProgress : public IProgressAbortListener
{
public:
    ConsoleProgress();
    ~ConsoleProgress() override;

    ConsoleProgress(const ConsoleProgress &) = delete;
    ConsoleProgress &operator=(const ConsoleProgress &) = delete;

    void setSteps(int count) override;
    void proceed(const QString &text) override;
    int abortState() const override;

    /** Takes the bar off the terminal. */
    void clear();

private:
    void draw(const QString &text);

    const bool m_visible;
    bool m_drawn = false;
    int m_steps = 0;
    int m_value = 0;
    QElapsedTimer m_lastDrawn;
};
