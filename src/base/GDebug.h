#pragma once

#include "base/GLogServer.h"

#include <memory>
#include <QDate>
#include <QDateTime>
#include <QEvent>
#include <QHash>
#include <QLine>
#include <QLineF>
#include <QList>
#include <QMap>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QTextStream>
#include <QTime>
#include <QUrl>
#include <QVariant>

/** The enumerator's name of a Qt event type; "UNKNOWN" for a type that Qt does not know. */
QString event2shortString(QEvent::Type type);

/**
 * One log message in the making, a temporary that values are streamed into:
 * `gWarning("FileSync") << "took" << 12 << "ms";`. Copies share the message, and
 * the last one to go sends it to the log server. A filtered message has no
 * record, and streaming into it does nothing. Not shared between threads.
 */
class GDebug
{
public:
    /** A message that is filtered out. */
    GDebug() = default;
    /** @param facility must outlive the message; may be null */
    GDebug(const char *facility, int level);

    /** Applies the filters: an empty message when @p facility is not to log at @p level. */
    static GDebug create(const char *facility, int level);

    /** Qt message handler that routes Qt's own messages into the log. */
    static void redirectQDebug(QtMsgType type, const QMessageLogContext &context,
                               const QString &message);

    bool isActive() const { return m_record != nullptr; }

    /** Whether a blank follows each value; it does at first. */
    GDebug &space();
    GDebug &nospace();
    /** A message that is switched off when its last handle goes is not written. */
    GDebug &setEnabled(bool enabled);

    GDebug &operator<<(const char *value);
    GDebug &operator<<(const QString &value);
    GDebug &operator<<(const QByteArray &value);
    GDebug &operator<<(char value);
    GDebug &operator<<(bool value);
    GDebug &operator<<(int value);
    GDebug &operator<<(unsigned int value);
    GDebug &operator<<(long value);
    GDebug &operator<<(unsigned long value);
    GDebug &operator<<(qlonglong value);
    GDebug &operator<<(qulonglong value);
    GDebug &operator<<(double value);
    GDebug &operator<<(const QSize &value);
    GDebug &operator<<(const QSizeF &value);
    GDebug &operator<<(const QPoint &value);
    GDebug &operator<<(const QPointF &value);
    GDebug &operator<<(const QRect &value);
    GDebug &operator<<(const QRectF &value);
    GDebug &operator<<(const QLine &value);
    GDebug &operator<<(const QLineF &value);
    GDebug &operator<<(const QDate &value);
    GDebug &operator<<(const QTime &value);
    GDebug &operator<<(const QDateTime &value);
    GDebug &operator<<(const QUrl &value);
    GDebug &operator<<(const QEvent *value);
    GDebug &operator<<(const QVariant &value);

    template <typename T>
    GDebug &operator<<(const QList<T> &list);
    template <typename K, typename V>
    GDebug &operator<<(const QMap<K, V> &map);
    template <typename K, typename V>
    GDebug &operator<<(const QHash<K, V> &hash);

    /** The global mask of levels; a bit that is not set here silences every facility. */
    static int mGlobalLogLevel;

private:
    struct Record
    {
        Record(const char *messageFacility, int messageLevel);
        ~Record();
        Record(const Record &) = delete;
        Record &operator=(const Record &) = delete;

        QString text;
        QTextStream stream{&text};
        int level;
        bool space = true;
        bool enabled = true;
        const char *facility;
    };

    static constexpr int LongList = 8;

    template <typename T>
    GDebug &append(const T &value);
    template <typename Fill>
    GDebug &composite(const char *name, Fill fill);
    template <typename Pairs>
    GDebug &pairs(const char *name, const Pairs &pairs);
    void separate(int index, int count);

    std::shared_ptr<Record> m_record;
};

inline GDebug gDebug(const char *facility)
{
    return GDebug::create(facility, LogLevel::Debug);
}
inline GDebug gWarning(const char *facility)
{
    return GDebug::create(facility, LogLevel::Warning);
}
inline GDebug gCritical(const char *facility)
{
    return GDebug::create(facility, LogLevel::Critical);
}
inline GDebug gFunction(const char *facility)
{
    return GDebug::create(facility, LogLevel::Function);
}

template <typename T>
GDebug &GDebug::append(const T &value)
{
    if (!m_record)
        return *this;
    m_record->stream << value;
    if (m_record->space)
        m_record->stream << ' ';
    return *this;
}

// Values inside a composite form are not followed by blanks, the form as a whole is.
template <typename Fill>
GDebug &GDebug::composite(const char *name, Fill fill)
{
    if (!m_record)
        return *this;
    const bool space = m_record->space;
    m_record->space = false;
    m_record->stream << name << '(';
    fill(*this);
    m_record->space = space;
    return append(')');
}

template <typename T>
GDebug &GDebug::operator<<(const QList<T> &list)
{
    return composite("QList", [&list](GDebug &out) {
        for (int i = 0; i < list.size(); ++i) {
            out.separate(i, list.size());
            out << list.at(i);
        }
    });
}

template <typename Pairs>
GDebug &GDebug::pairs(const char *name, const Pairs &pairs)
{
    return composite(name, [&pairs](GDebug &out) {
        int index = 0;
        for (auto pair = pairs.begin(); pair != pairs.end(); ++pair) {
            out.separate(index++, pairs.size());
            out << pair.key() << '=' << pair.value();
        }
    });
}

template <typename K, typename V>
GDebug &GDebug::operator<<(const QMap<K, V> &map)
{
    return pairs("QMap", map);
}

template <typename K, typename V>
GDebug &GDebug::operator<<(const QHash<K, V> &hash)
{
    return pairs("QHash", hash);
}
