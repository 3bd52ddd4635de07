#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaEnum>
#include <QProgressBar>
#include <QStringList>
#include <QTabBar>
#include <QTextDocument>
#include <QTextEdit>

/** Collects what a user of a screen reader would miss in a window that is being shown. */
class AccessibleWalk
{
public:
    /** One line for each fault of \a window; empty when there is none. */
    static QStringList faults(QWidget *window)
    {
        AccessibleWalk walk;
        walk.visit(QAccessible::queryAccessibleInterface(window), window->windowTitle());
        if (walk.m_controls == 0)
            walk.m_faults.append(QStringLiteral("no control at all"));
        return walk.m_faults;
    }

private:
    void visit(QAccessibleInterface *node, const QString &path)
    {
        const QAccessible::State state = node->state();
        if (state.invisible)
            return;
        const auto *widget = qobject_cast<QWidget *>(node->object());
        // The field inside of a combo box speaks through the box.
        if (widget && widget->focusProxy())
            return;
        const QString step = widget ? QString::fromLatin1(widget->metaObject()->className())
                                    : roleName(node->role());
        const QString here = QStringLiteral("%1/%2").arg(path, step);
        if (Qt::mightBeRichText(node->text(QAccessible::Description)))
            m_faults.append(here + QStringLiteral(": raw markup in the description"));
        const bool isOpened = node->role() == QAccessible::Window ||
                              node->role() == QAccessible::Dialog ||
                              node->role() == QAccessible::AlertMessage;
        if (widget && widget->isWindow() && !isOpened)
            m_faults.append(here + QStringLiteral(": is no window"));
        // What Qt says of a QFrame of which nobody has said what it is.
        if (node->role() == QAccessible::Border)
            m_faults.append(here + QStringLiteral(": is a mere frame"));
        if (isControl(node, widget))
            check(node, widget, here);
        for (int i = 0; i < node->childCount(); ++i) {
            if (QAccessibleInterface *child = node->child(i))
                visit(child, here);
        }
    }

    static bool isControl(QAccessibleInterface *node, const QWidget *widget)
    {
        if (widget && widget->isWindow())
            return true;
        if (node->state().focusable || qobject_cast<const QProgressBar *>(widget))
            return true;
        switch (node->role()) {
        case QAccessible::Button:
        case QAccessible::CheckBox:
        case QAccessible::ListItem:
        case QAccessible::MenuItem:
        case QAccessible::PageTab:
            return true;
        default:
            return false;
        }
    }

    void check(QAccessibleInterface *node, const QWidget *widget, const QString &path)
    {
        ++m_controls;
        const QString name = node->text(QAccessible::Name);
        const auto expect = [&](bool good, const char *what) {
            if (!good)
                m_faults.append(QStringLiteral("%1 '%2': %3").arg(path, name, QLatin1String(what)));
        };
        expect(!name.trimmed().isEmpty() || qobject_cast<const QComboBox *>(widget), "has no name");
        expect(node->role() != QAccessible::NoRole, "has no role");
        if (!widget || widget->isWindow())
            return;
        // The name that Qt tells of a combo box is its text.
        if (qobject_cast<const QComboBox *>(widget))
            expect(isLabelled(node), "has no label");
        const QAccessible::State state = node->state();
        expect(!state.disabled == widget->isEnabled(), "tells whether it can be used");
        expect(roles(widget).contains(node->role()), qPrintable(roleName(node->role())));
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            expect(bool(state.checkable) == button->isCheckable(), "tells whether it is a switch");
            expect(bool(state.checked) == button->isChecked(), "tells whether it is on");
        }
        if (const auto *line = qobject_cast<const QLineEdit *>(widget))
            expect(bool(state.readOnly) == line->isReadOnly(), "tells whether it is read only");
    }

    static bool isLabelled(QAccessibleInterface *node)
    {
        return !node->relations(QAccessible::Label).isEmpty() ||
               !node->text(QAccessible::Description).isEmpty();
    }

    static QList<QAccessible::Role> roles(const QWidget *widget)
    {
        if (qobject_cast<const QAbstractButton *>(widget))
            return {QAccessible::Button, QAccessible::CheckBox, QAccessible::ButtonMenu};
        if (qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QTextEdit *>(widget))
            return {QAccessible::EditableText, QAccessible::Document, QAccessible::StaticText};
        if (qobject_cast<const QComboBox *>(widget))
            return {QAccessible::ComboBox};
        if (qobject_cast<const QTabBar *>(widget))
            return {QAccessible::PageTabList};
        if (qobject_cast<const QAbstractSlider *>(widget))
            return {QAccessible::Slider, QAccessible::ScrollBar};
        if (qobject_cast<const QProgressBar *>(widget))
            return {QAccessible::ProgressBar};
        if (qobject_cast<const QLabel *>(widget))
            return {QAccessible::StaticText, QAccessible::Graphic, QAccessible::Link};
        return {QAccessible::List, QAccessible::Tree, QAccessible::Table, QAccessible::Graphic};
    }

    static QString roleName(QAccessible::Role role)
    {
        return QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(role));
    }

    QStringList m_faults;
    int m_controls = 0;
};
