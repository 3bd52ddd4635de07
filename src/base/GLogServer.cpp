#include "base/GLogServer.h"

#include "base/GDebug.h"

#include <algorithm>
#include <QFile>
#include <QMutexLocker>
#include <QTime>

namespace {

const char *levelTag(int level)
{
    switch (level) {
    case LogLevel::Debug:
        return "DEBG";
    case LogLevel::Warning:
        return "WARN";
    case LogLevel::Critical:
        return "CRIT";
    case LogLevel::Function:
        return "FUNC";
    default:
        return "";
    }
}

// Errs on the side of silence: a slash, or a dot inside a word that is no
// decimal point, may belong to a path or a file name.
bool mayNameFile(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('/') || c == QLatin1Char('\\'))
            return true;
        if (c != QLatin1Char('.') || i + 1 == text.size())
            continue;
        const bool decimal = i > 0 && text.at(i - 1).isDigit() && text.at(i + 1).isDigit();
        if (text.at(i + 1).isLetterOrNumber() && !decimal)
            return true;
    }
    return false;
}

} // namespace

GLogServer::~GLogServer()
{
    closeOutput();
}

bool GLogServer::canLog(const char *facility, int level)
{
    QMutexLocker lock(&m_mutex);
    QString name = QString::fromUtf8(facility);
    m_known.insert(name);
    while (!name.isEmpty()) {
        const auto entry = m_levels.constFind(name);
        if (entry != m_levels.constEnd())
            return (*entry & level) != 0;
        const int slash = name.lastIndexOf(QLatin1Char('/'));
        if (slash < 0)
            break;
        name.truncate(slash);
    }
    return (m_levels.value(QStringLiteral("/"), LogLevel::All) & level) != 0;
}

void GLogServer::logMessage(const char *facility, int level, QString text)
{
    text = text.trimmed();
    if (m_suppressions.contains(text))
        return;
    const QString separator = QStringLiteral(" | ");
    const QString prefix =
        QLatin1String(levelTag(level)) + separator +
        QTime::currentTime().toString(QStringLiteral("ss.zzz")) + separator +
        QString::fromUtf8(facility).rightJustified(m_facilityWidth, QLatin1Char(' '));
    const QString kept = mayNameFile(text) ? QStringLiteral("(may name a file)") : text;
    m_recent.append((prefix + separator + kept).toUtf8().toStdString());

    text.replace(QLatin1Char('\n'), QLatin1Char('\n') + prefix + QStringLiteral(" + "));
    QByteArray line = (prefix + separator + text + QLatin1Char('\n')).toUtf8();
    std::replace(line.begin(), line.end(), '\0', ' ');
    std::fputs(line.constData(), m_stream);
}

int GLogServer::logLevelForFacility(const QString &facility)
{
    QMutexLocker lock(&m_mutex);
    return m_levels.value(facility, LogLevel::All);
}

void GLogServer::setLogLevelForFacility(const char *facility, int mask)
{
    QMutexLocker lock(&m_mutex);
    m_levels.insert(QString::fromUtf8(facility), mask);
}

void GLogServer::setGlobalLogLevel(int mask)
{
    GDebug::mGlobalLogLevel = mask;
}

void GLogServer::setFacilityWidth(int width)
{
    m_facilityWidth = width;
}

void GLogServer::addSuppression(const QString &text)
{
    m_suppressions.insert(text.trimmed());
}

QStringList GLogServer::knownFacilities() const
{
    QMutexLocker lock(&m_mutex);
    return m_known.values();
}

void GLogServer::setOutputFile(const QString &path)
{
    closeOutput();
    FILE *file = std::fopen(QFile::encodeName(path).constData(), "w+");
    m_stream = file ? file : stderr;
}

void GLogServer::closeOutput()
{
    if (m_stream != stderr)
        std::fclose(m_stream);
    m_stream = stderr;
}

GLogServer *theLogServer()
{
    // Never destroyed, since destructors that run after main() still log.
    static auto *const server = new GLogServer;
    return server;
}
