#include "widgets/controls/ScreenReader.h"

#include <QAccessibleWidget>
#include <QFrame>
#include <QTextDocumentFragment>

namespace {

constexpr char RoleProperty[] = "accessibleRole";

class RoleAccessible : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Description ? widget()->accessibleDescription()
                                                : QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface *createAccessible(const QString &, QObject *object)
{
    // One that is being destroyed is but a QWidget; what is made of it would outlive it.
    if (!object || !object->isWidgetType() || object->metaObject() == &QWidget::staticMetaObject)
        return nullptr;
    const QVariant role = object->property(RoleProperty);
    return role.isValid()
               ? new RoleAccessible(static_cast<QWidget *>(object), QAccessible::Role(role.toInt()))
               : nullptr;
}

/** What is said in a window: of no size, and so for nobody's eyes. */
class Announcement : public QFrame
{
public:
    explicit Announcement(QWidget *window) : QFrame(window)
    {
        ScreenReader::setRole(this, QAccessible::Notification);
        resize(0, 0);
        show();
    }
};

} // namespace

void ScreenReader::setRole(QWidget *widget, QAccessible::Role role)
{
    QAccessible::installFactory(createAccessible);
    widget->setProperty(RoleProperty, int(role));
}

void ScreenReader::say(QWidget *window, const QString &text)
{
    if (!QAccessible::isActive() || !window->isActiveWindow())
        return;
    const auto children = window->children();
    Announcement *announcement = nullptr;
    for (QObject *child : children) {
        if (auto *found = dynamic_cast<Announcement *>(child))
            announcement = found;
    }
    if (!announcement)
        announcement = new Announcement(window);
    announcement->setAccessibleName(text);
    // A notification that comes up is what screen readers speak unasked; Qt passes alerts on
    // to those of some systems only.
    QAccessibleEvent shown(announcement, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

void ScreenReader::setRichToolTip(QWidget *widget, const QString &toolTip)
{
    widget->setToolTip(toolTip);
    widget->setAccessibleDescription(QTextDocumentFragment::fromHtml(toolTip).toPlainText());
}
