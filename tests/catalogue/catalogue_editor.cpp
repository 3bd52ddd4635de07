#include "base/GSettings.h"
#include "catalogue/records/IFile.h"
#include "catalogue/sync/ProjectController.h"

#include <QFileInfo>
#include <QGuiApplication>

/**
 * A program that edits the catalogue of a profile, given by its settings file, and waits to
 * be killed: the design "a.dst" gets words, "b.dst" loses its own.
 */
int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    GSettings::setIniFile(QString::fromLocal8Bit(argv[1]));
    ProjectController controller;
    controller.loadOrCreateProject();
    controller.memory()->setInterval(std::chrono::milliseconds(10));
    const auto files = controller.project()->files();
    for (const auto &file : files) {
        const QString name = QFileInfo(file->absoluteFilePath()).fileName();
        if (name == QLatin1String("a.dst")) {
            file->setTags({"late", "\"quoted\"\n"});
            file->setNotes("written last");
            file->setFavorite(true);
        }
        if (name == QLatin1String("b.dst")) {
            file->setTags({});
            file->setNotes("a slip");
            controller.project()->undoStack()->undo();
        }
    }
    controller.project()->addTag("late");
    return QGuiApplication::exec();
}
