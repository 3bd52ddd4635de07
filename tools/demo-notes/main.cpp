// Puts tags, notes and favourites to the sample designs of a catalogue, as their owner
// might have done: what scripts/run.sh opens and the manual's pictures show is in use.
#include "base/Error.h"
#include "catalogue/records/Project.h"

#include <cstdio>
#include <QCoreApplication>
#include <QFileInfo>

namespace {

struct Remark
{
    const char *design; // base name of its file
    QStringList tags;
    bool favorite = false;
    const char *notes = "";
};

const Remark Remarks[] = {
    {"butterfly", {"animals", "summer"}, true, "On Lea's denim jacket. Needs cut-away stabilizer."},
    {"cat", {"animals", "kids"}, false, ""},
    {"fish", {"animals", "bathroom", "kids"}, false, ""},
    {"robin", {"animals", "winter"}, true, "Two for the Christmas stockings; use the matt red."},
    {"whale", {"animals", "bathroom", "kids"}, true, "Fits the small towels."},
    {"cornflowers", {"flowers", "summer"}, false, ""},
    {"fern", {"flowers", "table linen"}, false, "Lovely tone on tone, on linen."},
    {"rose", {"flowers", "gifts"}, true, "Grandma's favorite. Slow down for the satin petals."},
    {"sunflower", {"flowers", "summer", "table linen"}, false, ""},
    {"tulip", {"flowers", "spring"}, false, ""},
    {"alphabet", {"letters"}, false, ""},
    {"hello", {"kids", "letters"}, false, ""},
    {"love", {"gifts", "letters"}, true, "For the wedding cushion: white on ivory."},
    {"monogram", {"gifts", "letters"}, false, ""},
    {"anchor", {"bathroom"}, false, ""},
    {"border", {"table linen"}, false, "Sew it end to end around the hem."},
    {"heart", {"gifts", "kids"}, false, ""},
    {"mandala", {"cushions"}, true, "Changes thread often; worth it."},
    {"mountains", {"cushions"}, false, ""},
    {"snowflake", {"winter"}, false, ""},
    {"star", {"kids", "winter"}, false, ""},
    {"sun", {"kids", "summer"}, false, ""},
    {"tree", {"gifts", "winter"}, false, ""},
};

void remark(const QString &catalogue)
{
    Project project;
    project.load(catalogue);
    for (const QSharedPointer<IFile> &file : project.files()) {
        const QString design = QFileInfo(file->absoluteFilePath()).completeBaseName();
        for (const Remark &remark : Remarks) {
            if (design != QLatin1String(remark.design))
                continue;
            file->setTags(remark.tags);
            file->setNotes(QString::fromUtf8(remark.notes));
            file->setFavorite(remark.favorite);
            for (const QString &tag : remark.tags)
                project.addTag(tag);
        }
    }
    project.save(catalogue);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    if (argc != 2) {
        std::fputs("usage: demo-notes CATALOGUE\n", stderr);
        return 2;
    }
    try {
        remark(QFile::decodeName(argv[1]));
    } catch (const Error &error) {
        std::fprintf(stderr, "demo-notes: %s\n", qPrintable(error.toString()));
        return 1;
    }
    return 0;
}
