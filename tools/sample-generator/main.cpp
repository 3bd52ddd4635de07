#include "Designs.h"

#include "writers/DesignWriters.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>
#include <QTextStream>

namespace {
/** Writes one sample in every format; false after a failure, which @p err tells. */
bool writeSample(const Embroidery::EmbPattern &pattern, const QDir &folder, QTextStream &err)
{
    const QString category = pattern.metadata(Embroidery::EmbPattern::PROP_CATEGORY, QString());
    const QString stem = category + QLatin1Char('/') + pattern.getName().toLower();
    if (!folder.mkpath(category)) {
        err << "Failed to create " << folder.filePath(category) << '\n';
        return false;
    }
    for (const QString &format : DesignWriters::formats()) {
        QSaveFile file(folder.filePath(stem + QLatin1Char('.') + format));
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(DesignWriters::write(format, pattern)) < 0 || !file.commit()) {
            err << "Failed to write " << file.fileName() << ": " << file.errorString() << '\n';
            return false;
        }
    }
    return true;
}
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Writes the sample designs in every format."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("where to write them"));
    parser.process(app);
    if (parser.positionalArguments().size() != 1)
        parser.showHelp(2);

    QTextStream err(stderr);
    const QDir folder(parser.positionalArguments().first());
    for (const SampleMaker &make : flowers() + animals() + letters() + shapes()) {
        if (!writeSample(*make(), folder, err))
            return 1;
    }
    return 0;
}
