#include "ui/print/SheetDialog.h"

#include "ui/print/SheetForm.h"
#include "ui/print/SheetPages.h"
#include "ui/print/SheetPreview.h"
#include "ui/print/SheetSettings.h"
#include "widgets/controls/FocusReturn.h"
#include "widgets/style/GIcon.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

constexpr int Delay = 150; // milliseconds

} // namespace

SheetDialog::SheetDialog(Purpose purpose, const SheetDesigns &selected, const SheetDesigns &shown,
                         QWidget *parent)
    : QDialog(parent), m_selected(selected), m_shown(shown),
      m_form(new SheetForm(selected.size(), shown.size(), SheetSettings::load(), this)),
      m_pages(new SheetPages(this)), m_preview(new SheetPreview(m_pages, this))
{
    const bool prints = purpose == Print;
    setWindowTitle(prints ? tr("Print") : tr("Export as PDF"));
    new FocusReturn(this);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton *go =
        buttons->addButton(prints ? tr("Print...") : tr("Export..."), QDialogButtonBox::AcceptRole);
    go->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &SheetDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SheetDialog::reject);

    // On a small screen the form scrolls.
    auto *scroller = new QScrollArea(this);
    scroller->setWidget(m_form);
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setFocusPolicy(Qt::NoFocus);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setFixedWidth(m_form->minimumWidth() +
                            scroller->verticalScrollBar()->sizeHint().width());
    auto *right = new QVBoxLayout;
    right->addWidget(m_preview, 1);
    QWidget *navigation = createNavigation();
    right->addWidget(navigation);
    auto *columns = new QHBoxLayout;
    columns->addWidget(scroller);
    columns->addLayout(right, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addWidget(buttons);
    const int missing = m_form->sizeHint().height() + navigation->sizeHint().height() -
                        columns->sizeHint().height();
    resize((sizeHint() + QSize(0, qMax(0, missing))).boundedTo(screen()->availableSize()));

    m_delay.setSingleShot(true);
    m_delay.setInterval(Delay);
    connect(&m_delay, &QTimer::timeout, this, &SheetDialog::showSheet);
    connect(m_form, &SheetForm::changed, &m_delay, QOverload<>::of(&QTimer::start));
    connect(m_pages, &SheetPages::changed, this, &SheetDialog::showPlace);
    showSheet();
}

QPushButton *SheetDialog::createTurner(const QString &icon, const QString &name)
{
    auto *button = new QPushButton(GIcon(icon), QString(), this);
    button->setAutoDefault(false);
    button->setAccessibleName(name);
    button->setToolTip(name);
    return button;
}

QWidget *SheetDialog::createNavigation()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_previous = createTurner(QStringLiteral(":/icons/previous.svg"), tr("Previous page"));
    m_next = createTurner(QStringLiteral(":/icons/next.svg"), tr("Next page"));
    m_place = new QLabel(row);
    m_place->setAlignment(Qt::AlignCenter);
    layout->addWidget(m_previous);
    layout->addWidget(m_place, 1);
    layout->addWidget(m_next);
    connect(m_previous, &QPushButton::clicked, m_pages, &SheetPages::showPrevious);
    connect(m_next, &QPushButton::clicked, m_pages, &SheetPages::showNext);
    return row;
}

void SheetDialog::showSheet()
{
    m_pages->setSheet(designs(), options());
}

void SheetDialog::showPlace()
{
    m_place->setText(m_pages->place());
    m_previous->setEnabled(m_pages->hasPrevious());
    m_next->setEnabled(m_pages->hasNext());
}

SheetOptions SheetDialog::options() const
{
    return m_form->options();
}

const SheetDesigns &SheetDialog::designs() const
{
    return m_form->isForSelection() ? m_selected : m_shown;
}

void SheetDialog::accept()
{
    SheetSettings::save(options());
    QDialog::accept();
}
