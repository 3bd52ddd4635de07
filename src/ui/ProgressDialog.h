#pragma once

#include "base/IProgressAbortListener.h"

#include <QDialog>

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
    explicit ProgressDialog(QWidget *parent);

    /** Shows the window and forgets an earlier "Cancel". */
    void show();
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
    void pumpEvents();

    QLabel *m_label;
    QProgressBar *m_progressBar;
    QLabel *m_detail;
    QPushButton *m_cancelButton;
    bool m_aborted = false;
    qint64 m_lastEventProcessing = 0; ///< milliseconds since the epoch
};
