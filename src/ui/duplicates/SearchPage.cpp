#include "ui/duplicates/SearchPage.h"

#include "base/GTranslationLoader.h"

#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int BarWidth = 420;

} // namespace

SearchPage::SearchPage(QWidget *parent)
    : QWidget(parent), m_label(new QLabel(this)), m_bar(new QProgressBar(this)),
      m_cancel(new QPushButton(tr("Cancel"), this))
{
    m_bar->setFixedWidth(BarWidth);
    m_bar->setAccessibleName(tr("Progress"));
    connect(m_cancel, &QPushButton::clicked, this, &SearchPage::cancelled);
    auto *layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(m_label, 0, Qt::AlignHCenter);
    layout->addWidget(m_bar, 0, Qt::AlignHCenter);
    layout->addWidget(m_cancel, 0, Qt::AlignHCenter);
    layout->addStretch();
    showProgress(0, 0);
}

void SearchPage::showProgress(int read, int count)
{
    const QLocale locale = GTranslationLoader::instance()->locale();
    m_bar->setRange(0, count);
    m_bar->setValue(read);
    m_label->setText(count == 0 ? tr("Comparing the designs...")
                                : tr("Comparing the designs: %1 of %2")
                                      .arg(locale.toString(read), locale.toString(count)));
}
