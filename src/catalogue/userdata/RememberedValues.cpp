#include "catalogue/userdata/RememberedValues.h"

void RememberedValues::setValue(const QString &key, const QString &value)
{
    if (m_values.contains(key) && m_values.value(key) == value)
        return;
    m_values.insert(key, value);
    emit edited(key, value);
}

void RememberedValues::addMissing(const QMap<QString, QString> &values)
{
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        if (!m_values.contains(it.key()))
            m_values.insert(it.key(), it.value());
    }
}
