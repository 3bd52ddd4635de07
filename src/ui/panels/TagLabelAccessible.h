#pragma once

#include <QAccessibleWidget>

class TagLabel;

/**
 * A chip as assistive technologies see it: a check box that is checked where all of the
 * selected files bear the tag, and partly where only some do.
 */
class TagLabelAccessible : public QAccessibleWidget
{
public:
    /** Makes it the accessible side of every TagLabel. */
    static void install();

    explicit TagLabelAccessible(TagLabel *chip);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    TagLabel *chip() const;
};
