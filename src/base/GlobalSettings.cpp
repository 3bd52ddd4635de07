#include "base/GlobalSettings.h"

#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

namespace {

constexpr int DefaultGridScaleFactor = 100;

const QString ApplicationDataPath = QStringLiteral("applicationDataPath");
const QString LastImportPath = QStringLiteral("lastImportPath");
const QString GridScaleFactor = QStringLiteral("gridScaleFactor");
const QString SortOrder = QStringLiteral("sortOrder");
const QString JumpsShown = QStringLiteral("jumpsShown");
const QString HoopShown = QStringLiteral("hoopShown");
const QString DesignWindowGeometry = QStringLiteral("designWindowGeometry");
const QString ImperialUnits = QStringLiteral("imperialUnits");

} // namespace

QString GlobalSettings::otherCatalogue;

QString GlobalSettings::applicationDataPath()
{
    if (usesOtherCatalogue())
        return QFileInfo(otherCatalogue).path();
    const QVariant stored = value(ApplicationDataPath);
    if (stored.isValid())
        return stored.toString();
    QString path = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    setApplicationDataPath(path);
    return path;
}

void GlobalSettings::setApplicationDataPath(const QString &path)
{
    setValue(ApplicationDataPath, path);
}

QString GlobalSettings::catalogueFilePath()
{
    if (usesOtherCatalogue())
        return otherCatalogue;
    return applicationDataPath() + QStringLiteral("/hoopline-organizer.xml");
}

void GlobalSettings::useCatalogue(const QString &path)
{
    const QFileInfo own(GlobalSettings().catalogueFilePath());
    const QFileInfo wanted(path);
    const bool isOwn = own.exists() && wanted.exists()
                           ? own.canonicalFilePath() == wanted.canonicalFilePath()
                           : own.absoluteFilePath() == wanted.absoluteFilePath();
    if (!isOwn)
        otherCatalogue = path;
}

bool GlobalSettings::usesOtherCatalogue()
{
    return !otherCatalogue.isEmpty();
}

QString GlobalSettings::previewImagePath(const QByteArray &hash)
{
    QString directory = applicationDataPath() + QStringLiteral("/previews/");
    if (hash.isNull())
        return directory;
    return directory + QString::fromLatin1(hash.toHex()) + QStringLiteral(".png");
}

QString GlobalSettings::lockFilePath()
{
    return applicationDataPath() + QStringLiteral("/hoopline-organizer.lock");
}

QString GlobalSettings::lastImportPath() const
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return value(LastImportPath, documents).toString();
}

void GlobalSettings::setLastImportPath(const QString &path)
{
    setValue(LastImportPath, path);
}

int GlobalSettings::gridScaleFactor() const
{
    return value(GridScaleFactor, DefaultGridScaleFactor).toInt();
}

void GlobalSettings::setGridScaleFactor(int percent)
{
    setValue(GridScaleFactor, percent);
}

QString GlobalSettings::sortOrder() const
{
    return value(SortOrder).toString();
}

void GlobalSettings::setSortOrder(const QString &order)
{
    setValue(SortOrder, order);
}

bool GlobalSettings::jumpsShown() const
{
    return value(JumpsShown, false).toBool();
}

void GlobalSettings::setJumpsShown(bool shown)
{
    setValue(JumpsShown, shown);
}

bool GlobalSettings::hoopShown() const
{
    return value(HoopShown, true).toBool();
}

void GlobalSettings::setHoopShown(bool shown)
{
    setValue(HoopShown, shown);
}

QByteArray GlobalSettings::designWindowGeometry() const
{
    return value(DesignWindowGeometry).toByteArray();
}

void GlobalSettings::setDesignWindowGeometry(const QByteArray &geometry)
{
    setValue(DesignWindowGeometry, geometry);
}

bool GlobalSettings::imperialUnits()
{
    const QVariant stored = value(ImperialUnits);
    if (stored.isValid())
        return stored.toBool();
    const bool imperial = QLocale::system().measurementSystem() != QLocale::MetricSystem;
    setImperialUnits(imperial);
    return imperial;
}

void GlobalSettings::setImperialUnits(bool imperial)
{
    setValue(ImperialUnits, imperial);
}
