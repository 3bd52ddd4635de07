#include "widgets/controls/ActivityList.h"

#include <algorithm>

ActivityList *ActivityList::around(const QObject *origin)
{
    for (; origin; origin = origin->parent()) {
        if (auto *list = origin->findChild<ActivityList *>({}, Qt::FindDirectChildrenOnly))
            return list;
    }
    return nullptr;
}

QString ActivityList::latest() const
{
    return m_activities.isEmpty() ? QString() : m_activities.constLast().second;
}

int ActivityList::begin(const QString &text)
{
    m_activities.append({++m_begun, text});
    emit changed(latest());
    return m_begun;
}

void ActivityList::end(int activity)
{
    m_activities.erase(
        std::remove_if(m_activities.begin(), m_activities.end(),
                       [activity](const auto &each) { return each.first == activity; }),
        m_activities.end());
    emit changed(latest());
}
