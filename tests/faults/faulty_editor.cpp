// faulty_editor begin|work|leave
// Edits the designs of the user's catalogue, says what a user may rely on from then on, and
// ends: it begins with words for all of them, works on some and saves now and then, or leaves
// without having saved.

#include "base/BuildConfig.h"
#include "base/Error.h"
#include "catalogue/records/IFile.h"
#include "catalogue/sync/ProjectController.h"

#include <cstdio>
#include <QFileInfo>
#include <QGuiApplication>

namespace {

void say(const QByteArray &line)
{
    std::printf("%s\n", line.constData());
    std::fflush(stdout);
}

QString nameOf(const IFile &file)
{
    return QFileInfo(file.absoluteFilePath()).fileName();
}

/** Somebody at work. */
class Editor
{
public:
    Editor() { m_controller.loadOrCreateProject(); }

    void begin()
    {
        const auto files = m_controller.project()->files();
        for (const auto &file : files) {
            file->setTags({QStringLiteral("first"), nameOf(*file)});
            file->setNotes(QStringLiteral("notes to ") + nameOf(*file));
        }
        m_controller.project()->setAllTags({QStringLiteral("first")});
        save();
    }

    void work(bool saving)
    {
        edit(QStringLiteral("0.dst"), [](IFile &file) { file.setTags({"\"typed\"\n"}); });
        if (saving)
            save();
        edit(QStringLiteral("1.dst"), [](IFile &file) {
            file.setNotes({});
            file.setFavorite(true);
        });
    }

private:
    /** Says the name of the design when two seconds after the edit have passed. */
    template <class Edit>
    void edit(const QString &name, Edit edit)
    {
        const auto files = m_controller.project()->files();
        for (const auto &file : files) {
            if (nameOf(*file) == name)
                edit(*file);
        }
        // What these two seconds are for: to look for edits and to write them down.
        m_controller.memory()->collect();
        m_controller.memory()->absentDesigns();
        say(name.toUtf8());
    }

    /** As the window does: once more after a while when it did not work. */
    void save()
    {
        for (int attempt = 0; attempt < 2; ++attempt) {
            try {
                m_controller.saveProjectIfModified();
                say("saved");
                return;
            } catch (const Error &) {
                say("not saved");
            }
        }
    }

    ProjectController m_controller;
};

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Hoopline Organizer"));
    QCoreApplication::setOrganizationName(QLatin1String(BuildConfig::Organisation));
    const QByteArray task = argc > 1 ? argv[1] : "";
    try {
        Editor editor;
        if (task == "begin")
            editor.begin();
        else
            editor.work(task == "work");
        return 0;
    } catch (const Error &error) {
        std::fprintf(stderr, "%s\n", qPrintable(error.toString()));
        return 1;
    }
}
