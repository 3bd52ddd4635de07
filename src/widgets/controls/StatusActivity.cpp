#include "widgets/controls/StatusActivity.h"

#include "widgets/controls/ActivityList.h"

StatusActivity::StatusActivity(const QObject *origin, const QString &text, QObject *parent)
    : QObject(parent), m_list(ActivityList::around(origin))
{
    if (m_list)
        m_activity = m_list->begin(text);
}

StatusActivity::~StatusActivity()
{
    if (m_list)
        m_list->end(m_activity);
}
