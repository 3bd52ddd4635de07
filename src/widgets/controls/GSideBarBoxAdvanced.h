#pragma once

#include "widgets/controls/GSideBarBox.h"

class QToolButton;

/**
 * A box with a part for advanced users below its content, which a button shows and hides. The
 * side bar stores the choice under the box's object name.
 */
class GSideBarBoxAdvanced : public GSideBarBox
{
    Q_OBJECT

public:
    explicit GSideBarBoxAdvanced(const QString &title, QWidget *parent = nullptr);

    /** The layout of the advanced part. Owned by the box. */
    QVBoxLayout *advancedLayout() const { return m_advancedLayout; }

    /** Hidden at first. */
    bool showAdvanced() const;
    void setShowAdvanced(bool show);

private:
    void updateAdvanced(bool show);

    QToolButton *m_button;
    QWidget *m_advanced;
    QVBoxLayout *m_advancedLayout;
};
