#include "embroidery/EmbReader.h"

#include "embroidery/EmbPattern.h"

namespace Embroidery {

EmbReader::EmbReader(const QString &name) : m_name(name) {}

void EmbReader::set(const QString &key, const QVariant &value)
{
    m_settings[key] = value;
}

QVariant EmbReader::get(const QString &key)
{
    return m_settings[key];
}

QVariant EmbReader::get(const QString &key, const QVariant &defaultValue)
{
    return m_settings.value(key, defaultValue);
}

void EmbReader::read(QSharedPointer<EmbPattern> &pattern, QIODevice *device)
{
    pattern->setFormat(m_name);
    setDevice(device);
    m_pattern = pattern;
    read();
}

} // namespace Embroidery
