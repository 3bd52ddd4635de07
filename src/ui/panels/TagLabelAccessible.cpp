#include "ui/panels/TagLabelAccessible.h"

#include "ui/panels/TagLabel.h"

namespace {

QAccessibleInterface *createForChip(const QString &, QObject *object)
{
    auto *chip = qobject_cast<TagLabel *>(object);
    return chip ? new TagLabelAccessible(chip) : nullptr;
}

} // namespace

void TagLabelAccessible::install()
{
    QAccessible::installFactory(createForChip);
}

TagLabelAccessible::TagLabelAccessible(TagLabel *chip)
    : QAccessibleWidget(chip, QAccessible::CheckBox)
{
}

TagLabel *TagLabelAccessible::chip() const
{
    return static_cast<TagLabel *>(widget());
}

QString TagLabelAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? chip()->text() : QAccessibleWidget::text(kind);
}

QAccessible::State TagLabelAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = chip()->multiSelect() == TagLabel::SetOnAll;
    state.checkStateMixed = chip()->multiSelect() == TagLabel::SetOnSome;
    return state;
}

QStringList TagLabelAccessible::actionNames() const
{
    return {toggleAction()};
}

void TagLabelAccessible::doAction(const QString &name)
{
    if (name != toggleAction() || !chip()->isEnabled())
        return;
    if (chip()->multiSelect() == TagLabel::SetOnAll)
        emit chip()->removeTag(chip());
    else
        emit chip()->completeTag(chip());
}
