#include "widgets/controls/GSideBar.h"

#include "base/GSettings.h"
#include "widgets/controls/GSideBarBox.h"
#include "widgets/controls/GSideBarBoxAdvanced.h"

#include <QSplitter>

namespace {

QString advancedKey(const GSideBarBoxAdvanced *box)
{
    return box->objectName() + QLatin1String("-showAdvanced");
}

} // namespace

GSideBar::GSideBar(QWidget *parent) : QScrollArea(parent), m_splitter(new QSplitter(Qt::Vertical))
{
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setHandleWidth(7);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidget(m_splitter);
}

void GSideBar::addBox(GSideBarBox *box)
{
    m_splitter->addWidget(box);
    if (box->sizePolicy().verticalStretch() == 0)
        m_splitter->setStretchFactor(m_splitter->count() - 1, 1);
}

void GSideBar::saveWidgetState(GSettings &settings) const
{
    settings.setValue(splitterKey(), m_splitter->saveState());
    const auto boxes = findChildren<GSideBarBoxAdvanced *>();
    for (const GSideBarBoxAdvanced *box : boxes)
        settings.setValue(advancedKey(box), box->showAdvanced());
}

void GSideBar::restoreWidgetState(GSettings &settings)
{
    const QByteArray state = settings.value(splitterKey()).toByteArray();
    // Another version may have had fewer boxes; of as many the state is as long.
    if (state.size() == m_splitter->saveState().size())
        m_splitter->restoreState(state);
    m_splitter->setChildrenCollapsible(false);
    const auto boxes = findChildren<GSideBarBoxAdvanced *>();
    for (GSideBarBoxAdvanced *box : boxes) {
        if (settings.contains(advancedKey(box)))
            box->setShowAdvanced(settings.value(advancedKey(box)).toBool());
    }
}

QSize GSideBar::minimumSizeHint() const
{
    return QSize(m_splitter->minimumSizeHint().width(), 0);
}

QSize GSideBar::sizeHint() const
{
    return m_splitter->sizeHint();
}

QString GSideBar::splitterKey() const
{
    return objectName() + QLatin1String("Splitter");
}
