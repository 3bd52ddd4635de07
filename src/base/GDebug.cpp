#include "base/GDebug.h"

#include <cstdlib>
#include <QMetaEnum>

int GDebug::mGlobalLogLevel = LogLevel::Warning | LogLevel::Critical;

QString event2shortString(QEvent::Type type)
{
    const char *name = type <= QEvent::ApplicationStateChange
                           ? QMetaEnum::fromType<QEvent::Type>().valueToKey(type)
                           : nullptr;
    return name ? QString::fromLatin1(name) : QStringLiteral("UNKNOWN");
}

GDebug::Record::Record(const char *messageFacility, int messageLevel)
    : level(messageLevel), facility(messageFacility)
{
}

GDebug::Record::~Record()
{
    stream.flush();
    if (enabled)
        theLogServer()->logMessage(facility, level, text);
}

GDebug::GDebug(const char *facility, int level)
    : m_record(std::make_shared<Record>(facility, level))
{
}

GDebug GDebug::create(const char *facility, int level)
{
    if (!(mGlobalLogLevel & level) || !theLogServer()->canLog(facility, level))
        return GDebug();
    return GDebug(facility, level);
}

void GDebug::redirectQDebug(QtMsgType type, const QMessageLogContext &context,
                            const QString &message)
{
    switch (type) {
    case QtDebugMsg:
    case QtInfoMsg:
        create(context.file, LogLevel::Debug) << message;
        break;
    case QtWarningMsg:
        create(context.file, LogLevel::Warning) << message;
        break;
    case QtCriticalMsg:
        create(context.file, LogLevel::Critical) << message;
        break;
    case QtFatalMsg:
        create(context.file, LogLevel::Critical) << message;
        std::abort();
    }
}

GDebug &GDebug::space()
{
    if (m_record)
        m_record->space = true;
    return *this;
}

GDebug &GDebug::nospace()
{
    if (m_record)
        m_record->space = false;
    return *this;
}

GDebug &GDebug::setEnabled(bool enabled)
{
    if (m_record)
        m_record->enabled = enabled;
    return *this;
}

void GDebug::separate(int index, int count)
{
    if (count > LongList)
        m_record->stream << (index > 0 ? ",\n    " : "\n    ");
    else if (index > 0)
        m_record->stream << ", ";
}

GDebug &GDebug::operator<<(const char *value)
{
    return m_record ? append(QString::fromUtf8(value)) : *this;
}
GDebug &GDebug::operator<<(const QString &value)
{
    return append(value);
}
GDebug &GDebug::operator<<(const QByteArray &value)
{
    return m_record ? append(QString::fromUtf8(value)) : *this;
}
GDebug &GDebug::operator<<(char value)
{
    return append(value);
}
GDebug &GDebug::operator<<(bool value)
{
    return append(value ? "true" : "false");
}
GDebug &GDebug::operator<<(int value)
{
    return append(value);
}
GDebug &GDebug::operator<<(unsigned int value)
{
    return append(value);
}
GDebug &GDebug::operator<<(long value)
{
    return append(value);
}
GDebug &GDebug::operator<<(unsigned long value)
{
    return append(value);
}
GDebug &GDebug::operator<<(qlonglong value)
{
    return append(value);
}
GDebug &GDebug::operator<<(qulonglong value)
{
    return append(value);
}
GDebug &GDebug::operator<<(double value)
{
    return append(value);
}

GDebug &GDebug::operator<<(const QSize &value)
{
    return composite("QSize", [&](GDebug &out) { out << value.width() << ", " << value.height(); });
}

GDebug &GDebug::operator<<(const QSizeF &value)
{
    return composite("QSizeF",
                     [&](GDebug &out) { out << value.width() << ", " << value.height(); });
}

GDebug &GDebug::operator<<(const QPoint &value)
{
    return composite("QPoint", [&](GDebug &out) { out << value.x() << ", " << value.y(); });
}

GDebug &GDebug::operator<<(const QPointF &value)
{
    return composite("QPointF", [&](GDebug &out) { out << value.x() << ", " << value.y(); });
}

GDebug &GDebug::operator<<(const QRect &value)
{
    return composite("QRect", [&](GDebug &out) {
        out << value.x() << ", " << value.y() << ", " << value.width() << ", " << value.height();
    });
}

GDebug &GDebug::operator<<(const QRectF &value)
{
    return composite("QRectF", [&](GDebug &out) {
        out << value.x() << ", " << value.y() << ", " << value.width() << ", " << value.height();
    });
}

GDebug &GDebug::operator<<(const QLine &value)
{
    return composite("QLine", [&](GDebug &out) { out << value.p1() << " - " << value.p2(); });
}

GDebug &GDebug::operator<<(const QLineF &value)
{
    return composite("QLineF", [&](GDebug &out) { out << value.p1() << " - " << value.p2(); });
}

GDebug &GDebug::operator<<(const QDate &value)
{
    return composite("QDate",
                     [&](GDebug &out) { out << value.toString(QStringLiteral("yyyy-MM-dd")); });
}

GDebug &GDebug::operator<<(const QTime &value)
{
    return composite("QTime",
                     [&](GDebug &out) { out << value.toString(QStringLiteral("hh:mm:ss")); });
}

GDebug &GDebug::operator<<(const QDateTime &value)
{
    return composite("QDateTime", [&](GDebug &out) {
        out << value.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    });
}

GDebug &GDebug::operator<<(const QUrl &value)
{
    return composite("QUrl", [&](GDebug &out) { out << value.toString(); });
}

GDebug &GDebug::operator<<(const QEvent *value)
{
    return composite("QEvent", [&](GDebug &out) {
        out << '"' << (value ? event2shortString(value->type()) : QStringLiteral("null")) << '"';
    });
}

GDebug &GDebug::operator<<(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
        return *this << value.toBool();
    case QMetaType::QSize:
        return *this << value.toSize();
    case QMetaType::QSizeF:
        return *this << value.toSizeF();
    case QMetaType::QPoint:
        return *this << value.toPoint();
    case QMetaType::QPointF:
        return *this << value.toPointF();
    case QMetaType::QRect:
        return *this << value.toRect();
    case QMetaType::QRectF:
        return *this << value.toRectF();
    case QMetaType::QLine:
        return *this << value.toLine();
    case QMetaType::QLineF:
        return *this << value.toLineF();
    case QMetaType::QDate:
        return *this << value.toDate();
    case QMetaType::QTime:
        return *this << value.toTime();
    case QMetaType::QDateTime:
        return *this << value.toDateTime();
    case QMetaType::QUrl:
        return *this << value.toUrl();
    case QMetaType::QStringList:
        return *this << value.toStringList();
    case QMetaType::QVariantList:
        return *this << value.toList();
    case QMetaType::QVariantMap:
        return *this << value.toMap();
    case QMetaType::QVariantHash:
        return *this << value.toHash();
    default:
        return value.canConvert<QString>() ? *this << value.toString() : *this << value.typeName();
    }
}
