#pragma once

#include <QMap>
#include <QObject>
#include <QString>

/** Small choices of the user, by their names. Whoever keeps them listens. Main thread only. */
class RememberedValues : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    const QMap<QString, QString> &all() const { return m_values; }
    QString value(const QString &key, const QString &fallback) const
    {
        return m_values.value(key, fallback);
    }
    void setValue(const QString &key, const QString &value);

    /** Takes over those that have not been chosen meanwhile. */
    void addMissing(const QMap<QString, QString> &values);

signals:
    void edited(const QString &key, const QString &value);

private:
    QMap<QString, QString> m_values;
};
