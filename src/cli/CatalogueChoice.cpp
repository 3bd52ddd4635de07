#include "cli/CatalogueChoice.h"

#include "base/Error.h"
#include "base/GlobalSettings.h"
#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/LocalPath.h"
#include <QDir>
#include <QFileInfo>

static constexpr char OptionName[] = "catalogue";

QCommandLineOption CatalogueChoice::option()
{
    return {QLatin1String(OptionName), tr("Work on this catalogue rather than the organizer's."),
            QStringLiteral("FILE")};
}

void CatalogueChoice::use(const CommandLine &line)
{
    if (!line.isSet(OptionName))
        return;
    const QString name = line.value(OptionName);
    if (name.isEmpty() || QFileInfo(LocalPath::of(name)).isDir())
        throw UsageError(tr("The catalogue must be a file."));
    GlobalSettings::useCatalogue(LocalPath::absolute(name));
}

void CatalogueChoice::expectCatalogue()
{
    const QString path = GlobalSettings().catalogueFilePath();
    if (QFileInfo::exists(path))
        return;
    if (GlobalSettings::usesOtherCatalogue())
        throw Error(tr("There is no catalogue '%1'.").arg(path));
    throw Error(tr("There is no catalogue yet; 'hoopline-cli scan FOLDER' makes one."));
}

void CatalogueChoice::expectRoomForPictures()
{
    if (!GlobalSettings::usesOtherCatalogue())
        return;
    const QFileInfo file(GlobalSettings().catalogueFilePath());
    const QString usual = QStringLiteral("hoopline-organizer.xml");
    if (file.fileName() != usual)
        throw UsageError(
            tr("A catalogue that is scanned must be named '%1': its pictures lie beside it.")
                .arg(usual));
    const QDir folder = file.dir();
    if (!file.exists() && folder.exists() && !folder.isEmpty())
        throw UsageError(
            tr("A new catalogue needs a new or empty folder: its pictures lie beside it."));
}
