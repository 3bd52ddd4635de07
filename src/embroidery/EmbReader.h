#pragma once

#include "embroidery/IReader.h"
#include "embroidery/ReadHelper.h"

#include <QHash>

namespace Embroidery {

/**
 * Base of the format readers: it keeps the settings and the pattern, and is the
 * byte reader that a format reads itself with.
 */
class EmbReader : public IReader, public ReadHelper
{
public:
    /** @p name is the format's short name, "dst" for instance. */
    explicit EmbReader(const QString &name);

    void set(const QString &key, const QVariant &value) override;
    QVariant get(const QString &key) override;
    QVariant get(const QString &key, const QVariant &defaultValue) override;
    void read(QSharedPointer<EmbPattern> &pattern, QIODevice *device) override;

protected:
    /** Reads the bytes of this object into pattern(). @throws IOException */
    virtual void read() = 0;

    /** The pattern to fill. */
    EmbPattern &pattern() const { return *m_pattern; }

private:
    QHash<QString, QVariant> m_settings;
    QSharedPointer<EmbPattern> m_pattern;
    QString m_name;
};

} // namespace Embroidery
