#pragma once

#include <QFrame>

class ElidedLabel;
class QAction;
class QToolButton;

/** A tag of the selected files as a chip with a button that removes it. */
class TagLabel : public QFrame
{
    Q_OBJECT

public:
    /** Whether all selected files bear the tag or only some of them. */
    enum MultiSelection { SetOnAll = 0, SetOnSome = 1 };

    TagLabel(const QString &text, MultiSelection multiSelect, QWidget *parent);

    void setText(const QString &text);
    QString text() const;

    MultiSelection multiSelect() const { return m_multiSelect; }
    void setMultiSelect(MultiSelection multiSelect);

    /** What the Tab key reaches of a chip. */
    QToolButton *removeButton() const { return m_removeButton; }

signals:
    void removeTag(TagLabel *label);
    /** A tag of some of the files is to be set on all. */
    void completeTag(TagLabel *label);

protected:
    void changeEvent(QEvent *event) override;

private:
    void removeTriggered();
    void updateStyle();
    void updateToolTips();

    QAction *m_removeAction;
    QToolButton *m_removeButton;
    ElidedLabel *m_label;
    MultiSelection m_multiSelect;
};
