#pragma once

#include <QAction>

class GIcon;

/**
 * A command that shows no icon in menus and never moves into the platform's
 * application menu by the guess of its text. When a slot is given, in the form
 * of SLOT(...), triggered(bool) is connected to it on the parent.
 */
class GAction : public QAction
{
    Q_OBJECT

public:
    explicit GAction(QObject *parent);
    explicit GAction(const QString &text, QObject *parent, const char *slot = nullptr);
    GAction(const GIcon &icon, const QString &text, QObject *parent, const char *slot = nullptr);

    /** A new separator; without a parent it belongs to the caller. */
    static GAction *separator(QObject *parent = nullptr);

private:
    void connectToParent(const char *slot);
};
