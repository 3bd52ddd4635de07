#include "ui/ProgressDialog.h"

#include "widgets/controls/FocusReturn.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEventLoop>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int MinimumBarWidth = 500;
constexpr qint64 PumpInterval = 100; // milliseconds
constexpr int Aborted = 2;

} // namespace

ProgressDialog::ProgressDialog(QWidget *parent)
    : QDialog(parent, Qt::Sheet), m_label(new QLabel(this)), m_progressBar(new QProgressBar(this)),
      m_detail(new QLabel(this)), m_cancelButton(new QPushButton(tr("Cancel"), this))
{
    setModal(true);
    setWindowTitle(QGuiApplication::applicationDisplayName());
    // File names are shown as they are, whatever they look like, and never widen the window.
    m_label->setTextFormat(Qt::PlainText);
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_progressBar->setMinimumWidth(MinimumBarWidth);
    m_progressBar->setRange(0, 0);
    m_progressBar->setAccessibleName(tr("Progress"));
    m_detail->hide();
    m_cancelButton->setAutoDefault(false);
    connect(m_cancelButton, &QPushButton::clicked, this, &ProgressDialog::reject);
    new FocusReturn(this);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_label);
    layout->addWidget(m_progressBar);
    layout->addWidget(m_detail);
    layout->addWidget(m_cancelButton, 0, Qt::AlignRight);
}

void ProgressDialog::begin()
{
    m_aborted = false;
    m_begun.start();
}

void ProgressDialog::show()
{
    m_aborted = false;
    m_begun.invalidate();
    QDialog::show();
}

void ProgressDialog::hide()
{
    m_begun.invalidate();
    QDialog::hide();
}

void ProgressDialog::setSteps(int steps)
{
    m_progressBar->setRange(0, steps);
    m_progressBar->setValue(0);
    m_label->clear();
    m_detail->clear();
    m_detail->hide();
}

void ProgressDialog::setDetail(const QString &text)
{
    m_detail->setText(text);
    m_detail->show();
}

void ProgressDialog::proceed(const QString &text)
{
    if (!text.isNull())
        m_label->setText(text);
    m_progressBar->setValue(qMin(m_progressBar->value() + 1, m_progressBar->maximum()));
    showWhenDue();
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (qAbs(now - m_lastEventProcessing) <= PumpInterval)
        return;
    m_lastEventProcessing = now;
    deliverEvents();
}

void ProgressDialog::stayResponsive()
{
    showWhenDue();
    deliverEvents();
}

void ProgressDialog::showWhenDue()
{
    if (isWaiting() && m_begun.hasExpired(Patience)) {
        m_begun.invalidate();
        QDialog::show();
    }
}

void ProgressDialog::deliverEvents()
{
    // Nothing bars the way to the window below as long as there is no dialog.
    QCoreApplication::processEvents(isWaiting() ? QEventLoop::ExcludeUserInputEvents
                                                : QEventLoop::AllEvents);
}

void ProgressDialog::setCancelEnabled(bool enabled)
{
    m_cancelButton->setEnabled(enabled);
}

int ProgressDialog::abortState() const
{
    return m_aborted ? Aborted : 0;
}

void ProgressDialog::reject()
{
    m_aborted = true;
    emit cancelRequested();
}
