#pragma once

#include <QToolBar>

/**
 * A tool bar that the user cannot rearrange. Groups are set apart by gaps instead of lines, and
 * every button can be reached with the Tab key.
 */
class GToolBar : public QToolBar
{
    Q_OBJECT

public:
    explicit GToolBar(const QString &title, QWidget *parent = nullptr);

    /** Sets what follows apart by two fixed gaps. */
    void addSeparator();

    /** Pushes what follows to the far side. */
    void addExpandingSeparator();

protected:
    void actionEvent(QActionEvent *event) override;

private:
    void addSpacer(QSizePolicy::Policy horizontalPolicy);
};
