#include "ui/SortMenu.h"

#include "base/GlobalSettings.h"
#include "catalogue/models/IFilterModel.h"

#include <QActionGroup>

SortMenu::SortMenu(IFilterModel *filter, QWidget *parent)
    : QMenu(tr("&Sort by"), parent), m_filter(filter), m_keys(new QActionGroup(this)),
      m_directions(new QActionGroup(this))
{
    addKeys();
    addSeparator();
    addDirections();
    connect(m_keys, &QActionGroup::triggered, this, &SortMenu::apply);
    connect(m_directions, &QActionGroup::triggered, this, &SortMenu::apply);
}

SortOrder SortMenu::rememberedOrder()
{
    return SortOrder::fromText(GlobalSettings().sortOrder()).value_or(SortOrder());
}

void SortMenu::addKeys()
{
    const SortOrder::Key chosen = m_filter->sortOrder().key;
    const auto add = [&](SortOrder::Key key, const QString &text, Qt::Key digit) {
        QAction *action = addChoice(m_keys, text, key);
        action->setShortcut(QKeySequence(int(Qt::CTRL) | int(digit)));
        action->setChecked(key == chosen);
    };
    add(SortOrder::Name, tr("&Name"), Qt::Key_1);
    add(SortOrder::Size, tr("Design &size"), Qt::Key_2);
    add(SortOrder::Stitches, tr("S&titches"), Qt::Key_3);
    add(SortOrder::Colors, tr("&Colors"), Qt::Key_4);
    add(SortOrder::Date, tr("File &date"), Qt::Key_5);
    add(SortOrder::Folder, tr("&Folder"), Qt::Key_6);
}

void SortMenu::addDirections()
{
    const bool descending = m_filter->sortOrder().descending;
    const auto add = [&](const QString &text, bool isDescending, Qt::Key key) {
        QAction *action = addChoice(m_directions, text, int(isDescending));
        action->setShortcut(QKeySequence(int(Qt::CTRL) | int(key)));
        action->setChecked(isDescending == descending);
    };
    add(tr("&Ascending"), false, Qt::Key_7);
    add(tr("D&escending"), true, Qt::Key_8);
}

QAction *SortMenu::addChoice(QActionGroup *group, const QString &text, int value)
{
    QAction *action = addAction(text);
    action->setCheckable(true);
    action->setData(value);
    group->addAction(action);
    return action;
}

void SortMenu::apply()
{
    const SortOrder order{SortOrder::Key(m_keys->checkedAction()->data().toInt()),
                          m_directions->checkedAction()->data().toBool()};
    GlobalSettings().setSortOrder(order.toText());
    m_filter->setSortOrder(order);
}
