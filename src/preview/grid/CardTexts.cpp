#include "preview/grid/CardTexts.h"

#include "base/GlobalSettings.h"
#include "catalogue/records/DesignTexts.h"
#include "catalogue/records/IFile.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "catalogue/records/Thread.h"
#include "preview/grid/UnreadDesign.h"
#include "properties/core/PropertyValues.h"
#include <QFileInfo>
#include <QStringList>

namespace {

// A file name may hold line breaks and tabs; a label has one line.
QString singleLine(QString text)
{
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line ||
            c.category() == QChar::Separator_Paragraph) {
            c = QLatin1Char(' ');
        }
    }
    return text;
}

} // namespace

QString CardTexts::name(const IFile &file)
{
    return singleLine(QFileInfo(file.absoluteFilePath()).fileName());
}

QString CardTexts::description(const IFile &file)
{
    QStringList parts;
    if (UnreadDesign::is(file)) {
        parts.append(UnreadDesign::text());
    }
    const QString size =
        LocaleAwareFunctions::toString(file.designSize(), GlobalSettings().imperialUnits());
    if (!size.isEmpty()) {
        parts.append(size);
    }
    if (const int stitches = file.stitchCount(); stitches > 0) {
        parts.append(tr("%1 stitches", nullptr, stitches).arg(DesignTexts::number(stitches)));
    }
    if (const int colors = file.threadsProp()->count(); colors > 0) {
        parts.append(tr("%1 colors", nullptr, colors).arg(DesignTexts::number(colors)));
    }
    const QStringList tags = file.tags();
    if (!tags.isEmpty()) {
        parts.append(tr("tags: %1").arg(tags.join(QStringLiteral(", "))));
    }
    if (file.isFavorite()) {
        parts.append(tr("favorite"));
    }
    return parts.join(QStringLiteral(", "));
}
