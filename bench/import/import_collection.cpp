#include "base/GlobalSettings.h"
#include "catalogue/sync/FileSync.h"
#include "embroidery/EmbroideryIO.h"
#include "support/Stopwatch.h"
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

/*
 * Imports a folder into a new profile and saves the catalogue, then rescans it: what the
 * plain pipeline and a walk that prints size and date of each file are compared with.
 */
namespace {

constexpr int Rescans = 9;

int scan(const QSharedPointer<Project> &project, int threads)
{
    FileSync sync(project, nullptr);
    if (threads > 0)
        sync.setThreadCount(threads);
    sync.syncFilesWithDisk(Embroidery::EmbroideryIO::supportedFormats());
    return project->files().size();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QDir profile(arguments.value(2));
    if (arguments.size() < 3 || arguments.size() > 4 || !profile.mkpath(QStringLiteral("."))) {
        std::fputs("usage: import-collection DIR PROFILE [THREADS]\n", stderr);
        return 2;
    }
    const int threads = arguments.value(3).toInt();
    GSettings::setIniFile(profile.absoluteFilePath(QStringLiteral("settings.ini")));
    GlobalSettings().setApplicationDataPath(profile.absolutePath());
    const auto project = QSharedPointer<Project>::create();
    project->setSmartFolders({QFileInfo(arguments.at(1)).absoluteFilePath()}, QString());

    const Stopwatch import;
    const int files = scan(project, threads);
    project->save(profile.absoluteFilePath(QStringLiteral("catalogue.xml")));
    import.print("import", files);

    for (int round = 0; round < Rescans; ++round) {
        const Stopwatch rescan;
        scan(project, threads);
        rescan.print("unchanged rescan", files);
    }
    return 0;
}
