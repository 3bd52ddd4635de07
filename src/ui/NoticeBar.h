#pragma once

#include "ui/Notice.h"

#include <QHash>
#include <QWidget>

class NoticeRow;
class QVBoxLayout;

/**
 * The bar across the top of the window: a row for each notice, the latest below, and
 * no room taken while there is none. Problems stay until whoever told them withdraws
 * them; information can be closed. A screen reader hears each text once.
 */
class NoticeBar : public QWidget
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent = nullptr);

    /** Shows @p notice, in the place of the one with the same id if there is one. */
    void tell(const Notice &notice);

    /** Takes the notice away; nothing happens when there is none of that id. */
    void withdraw(const QString &id);

    bool isTelling(const QString &id) const { return m_rows.contains(id); }

private:
    QVBoxLayout *m_layout;
    QHash<QString, NoticeRow *> m_rows;
};
