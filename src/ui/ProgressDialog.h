#pragma once

#include "base/IProgressAbortListener.h"

#include <QDialog>
#include <QElapsedTimer>

class QLabel;
class QProgressBar;
class QPushButton;

/**
 * The modal window that long work on the main thread reports to. It lets
 * events in while the work runs, which is what makes its "Cancel" work. Its
 * owner shows and hides it; the user can only ask for the end of the work.
 */
class ProgressDialog : public QDialog, public IProgressAbortListener
{
    Q_OBJECT

public:
    /** How long work may last until begin() has the window shown, in milliseconds. */
    static constexpr int Patience = 300;

    explicit ProgressDialog(QWidget *parent);

    /**
     * Forgets an earlier "Cancel" and lets proceed() show the window once the work has
     * lasted. What the user types and clicks until then waits for the end of the work.
     */
    void begin();

    /** Shows the window at once and forgets an earlier "Cancel". */
    void show();

    /** The end of the work, whether the window has come up or not. */
    void hide();

    void setSteps(int steps) override;

    /** One step on; a null @p text leaves the shown one. May deliver events. */
    void proceed(const QString &text) override;

    /** A second line, below the bar; gone with the next setSteps(). */
    void setDetail(const QString &text);

    /** For work that cannot be broken off. */
    void setCancelEnabled(bool enabled);

    /** Delivers events. */
    void stayResponsive() override;

    /** 2 once the user has asked to stop, 0 until then. */
    int abortState() const override;

public slots:
    void reject() override;

signals:
    /** The user has asked for the end; it is the owner who hides the window. */
    void cancelRequested();

private:
    bool isWaiting() const { return m_begun.isValid(); }
    void showWhenDue();
    void deliverEvents();

    QLabel *m_label;
    QProgressBar *m_progressBar;
    QLabel *m_detail;
    QPushButton *m_cancelButton;
    bool m_aborted = false;
    QElapsedTimer m_begun;            ///< invalid unless the window is still to come
    qint64 m_lastEventProcessing = 0; ///< milliseconds since the epoch
};
