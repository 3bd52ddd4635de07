#pragma once

#include "ui/Notice.h"

#include <QFrame>

class QHBoxLayout;
class QLabel;

/** One notice: its icon, its text, which can be selected and copied, and its buttons. */
class NoticeRow : public QFrame
{
    Q_OBJECT

public:
    NoticeRow(const Notice &notice, QWidget *parent);

    QString text() const;
    Notice::Kind kind() const { return m_kind; }

    void setActions(const QList<Notice::Action> &actions);

signals:
    /** The user has read it. */
    void closed(const QString &id);

protected:
    void changeEvent(QEvent *event) override;

private:
    void createButtons();
    void addCloseButton();
    void updateColors();

    QString m_id;
    Notice::Kind m_kind;
    QLabel *m_icon;
    QLabel *m_text;
    QList<Notice::Action> m_actions;
    QHBoxLayout *m_buttons;
};
