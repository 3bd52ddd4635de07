#include "ui/print/SheetSettings.h"

#include "base/GlobalSettings.h"

#include <QLocale>

namespace {

const QString Group = QStringLiteral("sheet");
const QString Kind = QStringLiteral("kind");
const QString Paper = QStringLiteral("paper");
const QString Landscape = QStringLiteral("landscape");
const QString Columns = QStringLiteral("columns");
const QString Facts = QStringLiteral("facts");
const QString FolderHeadings = QStringLiteral("folderHeadings");
const QString PageNumbers = QStringLiteral("pageNumbers");
const QString TrueSize = QStringLiteral("trueSize");

} // namespace

SheetOptions SheetSettings::load()
{
    GlobalSettings settings;
    SheetOptions options;
    options.imperial = settings.imperialUnits();
    const bool american = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    const QPageSize usual(american ? QPageSize::Letter : QPageSize::A4);
    settings.beginGroup(Group);
    const bool isWork = settings.value(Kind).toInt() == SheetOptions::Work;
    options.kind = isWork ? SheetOptions::Work : SheetOptions::Contact;
    const QString paper = settings.value(Paper, usual.key()).toString();
    options.paper = SheetOptions::paperOf(paper).value_or(usual.id());
    options.landscape = settings.value(Landscape, options.landscape).toBool();
    options.columns =
        qBound(1, settings.value(Columns, options.columns).toInt(), SheetOptions::MostColumns);
    options.facts = SheetOptions::Facts(settings.value(Facts, int(options.facts)).toInt()) &
                    SheetOptions::AllFacts;
    options.folderHeadings = settings.value(FolderHeadings, options.folderHeadings).toBool();
    options.pageNumbers = settings.value(PageNumbers, options.pageNumbers).toBool();
    options.trueSize = settings.value(TrueSize, options.trueSize).toBool();
    return options;
}

void SheetSettings::save(const SheetOptions &options)
{
    GlobalSettings settings;
    settings.beginGroup(Group);
    settings.setValue(Kind, int(options.kind));
    settings.setValue(Paper, QPageSize::key(options.paper));
    settings.setValue(Landscape, options.landscape);
    settings.setValue(Columns, options.columns);
    settings.setValue(Facts, int(options.facts));
    settings.setValue(FolderHeadings, options.folderHeadings);
    settings.setValue(PageNumbers, options.pageNumbers);
    settings.setValue(TrueSize, options.trueSize);
}
