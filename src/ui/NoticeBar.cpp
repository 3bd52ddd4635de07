#include "ui/NoticeBar.h"

#include "ui/NoticeRow.h"

#include <QVBoxLayout>

NoticeBar::NoticeBar(QWidget *parent) : QWidget(parent), m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    hide();
}

void NoticeBar::tell(const Notice &notice)
{
    NoticeRow *row = m_rows.value(notice.id);
    if (row && row->text() == notice.text && row->kind() == notice.kind) {
        row->setActions(notice.actions);
        return;
    }
    withdraw(notice.id);
    row = new NoticeRow(notice, this);
    connect(row, &NoticeRow::closed, this, &NoticeBar::withdraw);
    m_rows.insert(notice.id, row);
    m_layout->addWidget(row);
    row->show();
    show();
}

void NoticeBar::withdraw(const QString &id)
{
    NoticeRow *row = m_rows.take(id);
    if (!row)
        return;
    row->hide();
    // One of its buttons may be what asked for it.
    row->deleteLater();
    setVisible(!m_rows.isEmpty());
}
