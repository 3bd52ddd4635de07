#include "cli/Csv.h"

#include "base/Error.h"
#include <algorithm>
#include <QCoreApplication>

namespace {

constexpr QLatin1Char Quote('"');

QString field(const QString &text, QLatin1Char separator)
{
    const bool plain = std::none_of(text.begin(), text.end(), [separator](QChar c) {
        return c == Quote || c == separator || c == QLatin1Char('\n') || c == QLatin1Char('\r');
    });
    if (plain)
        return text;
    QString quoted = text;
    quoted.replace(Quote, QStringLiteral("\"\""));
    return Quote + quoted + Quote;
}

/** Takes fields from the front of a text. */
class FieldReader
{
public:
    FieldReader(const QString &text, QLatin1Char separator) : m_text(text), m_separator(separator)
    {
    }

    bool atEnd() const { return m_position >= m_text.size(); }

    QStringList record()
    {
        QStringList fields(field());
        while (!atEnd() && m_text.at(m_position) == m_separator) {
            ++m_position;
            fields.append(field());
        }
        if (!atEnd() && m_text.at(m_position) == QLatin1Char('\r'))
            ++m_position;
        if (!atEnd() && m_text.at(m_position) == QLatin1Char('\n'))
            ++m_position;
        return fields;
    }

private:
    QString field()
    {
        QString value;
        if (!atEnd() && m_text.at(m_position) == Quote)
            value = quoted();
        const int start = m_position;
        while (!atEnd() && !endsField(m_text.at(m_position)))
            ++m_position;
        return value + m_text.mid(start, m_position - start);
    }

    QString quoted()
    {
        QString value;
        for (++m_position; !atEnd(); ++m_position) {
            if (m_text.at(m_position) == Quote &&
                (++m_position >= m_text.size() || m_text.at(m_position) != Quote))
                return value;
            value += m_text.at(m_position);
        }
        throw Error(QCoreApplication::translate("Csv", "A quotation mark has no partner."));
    }

    bool endsField(QChar c) const
    {
        return c == m_separator || c == QLatin1Char('\n') || c == QLatin1Char('\r');
    }

    const QString &m_text;
    const QLatin1Char m_separator;
    int m_position = 0;
};

} // namespace

QString Csv::line(const QStringList &fields, QLatin1Char separator)
{
    QStringList line;
    for (const QString &text : fields)
        line.append(field(text, separator));
    return line.join(separator);
}

QList<QStringList> Csv::parse(const QString &text, QLatin1Char separator)
{
    QList<QStringList> records;
    FieldReader reader(text, separator);
    while (!reader.atEnd()) {
        const QStringList record = reader.record();
        if (record != QStringList(QString()))
            records.append(record);
    }
    return records;
}
