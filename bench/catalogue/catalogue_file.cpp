#include "catalogue/LargeCatalogue.h"
#include "catalogue/records/DataModelReader.h"
#include "support/Figure.h"

#include <QCoreApplication>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

/*
 * The catalogue file on its own, one step in each process so that each has its own peak
 * of memory: making one, loading it, and what plain readers and writers of the toolkit
 * take for the same bytes.
 */
namespace {

void printMemory()
{
    Figure::print("resident", double(memoryInKilobytes("VmRSS")) * 1024);
    Figure::print("peak", double(memoryInKilobytes("VmHWM")) * 1024);
}

int make(const QString &path, int count)
{
    Project project;
    fillCatalogue(&project, count);
    project.save(path);
    return 0;
}

int load(const QString &path)
{
    Project project;
    const auto run = [&] { project.load(path); };
    Figure::print("processor", Figure::milliseconds(run, CLOCK_PROCESS_CPUTIME_ID));
    Figure::print("records", project.filesProp()->count());
    printMemory();
    return 0;
}

int read(const QString &path)
{
    const auto run = [&] {
        QXmlStreamReader reader(DataModelReader::bytesOf(path));
        while (!reader.atEnd())
            reader.readNext();
    };
    Figure::print("processor", Figure::milliseconds(run, CLOCK_PROCESS_CPUTIME_ID));
    printMemory();
    return 0;
}

int copy(const QString &path)
{
    const QByteArray bytes = DataModelReader::bytesOf(path);
    double reading = 0;
    double both = 0;
    {
        QXmlStreamReader reader(bytes);
        reading = Figure::milliseconds([&] {
            while (!reader.atEnd())
                reader.readNext();
        });
    }
    {
        QXmlStreamReader reader(bytes);
        QByteArray written;
        QXmlStreamWriter writer(&written);
        both = Figure::milliseconds([&] {
            while (!reader.atEnd()) {
                reader.readNext();
                if (reader.tokenType() != QXmlStreamReader::Invalid)
                    writer.writeCurrentToken(reader);
            }
        });
    }
    Figure::print("processor", both - reading);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QString step = app.arguments().value(1);
    const QString path = app.arguments().value(2);
    const int count = app.arguments().value(3).toInt();
    if (step == QLatin1String("make") && count > 0)
        return make(path, count);
    if (step == QLatin1String("load"))
        return load(path);
    if (step == QLatin1String("read"))
        return read(path);
    if (step == QLatin1String("copy"))
        return copy(path);
    std::fputs("usage: catalogue-file make FILE COUNT | load FILE | read FILE | copy FILE\n",
               stderr);
    return 2;
}
