#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

#include <optional>

namespace {
/** One picture to draw: a source, an output (both below src/resources) and the width in pixels. */
struct Picture
{
    QString source;
    QString output;
    int width;
};

QVector<Picture> pictures()
{
    const QString application = QStringLiteral("artwork/application.svg");
    const QString smallApplication = QStringLiteral("artwork/application-small.svg");
    QVector<Picture> list = {
        {application, QStringLiteral("hoopline.png"), 256},
        {application, QStringLiteral("hoopline-mac.png"), 512},
        {QStringLiteral("artwork/splash.svg"), QStringLiteral("SplashScreen@2x.png"), 960},
        {QStringLiteral("artwork/loading.svg"), QStringLiteral("loading.png"), 400},
        {QStringLiteral("artwork/render-error.svg"), QStringLiteral("render-error.png"), 400},
    };
    // Threads vanish below 48 pixels, so the small icons have a plainer source.
    for (int size : {16, 22, 24, 32, 48, 64, 128, 256, 512})
        list.append({size < 48 ? smallApplication : application,
                     QStringLiteral("hicolor/%1x%1/apps/hoopline-organizer.png").arg(size), size});
    for (int size : {16, 22, 24, 32, 48, 64, 128, 256})
        list.append(
            {QStringLiteral("artwork/design-file.svg"),
             QStringLiteral("hicolor/%1x%1/mimetypes/application-x-embroidery.png").arg(size),
             size});
    return list;
}

/** Draws the SVG at the given width; nothing when the file can't be read as SVG. */
std::optional<QImage> draw(const QString &source, int width)
{
    QSvgRenderer renderer(source);
    if (!renderer.isValid())
        return std::nullopt;
    const QSize natural = renderer.defaultSize();
    QImage image(width, width * natural.height() / natural.width(),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}
} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Draws the PNG pictures of the program."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("resources"),
                                 QStringLiteral("the folder src/resources"));
    parser.process(app);
    if (parser.positionalArguments().size() != 1)
        parser.showHelp(2);

    const QDir resources(parser.positionalArguments().first());
    QTextStream err(stderr);
    for (const Picture &picture : pictures()) {
        const std::optional<QImage> image = draw(resources.filePath(picture.source), picture.width);
        const QString output = resources.filePath(picture.output);
        if (!image || !resources.mkpath(QFileInfo(picture.output).path()) || !image->save(output)) {
            err << "Failed to draw " << output << " from " << picture.source << '\n';
            return 1;
        }
    }
    return 0;
}
