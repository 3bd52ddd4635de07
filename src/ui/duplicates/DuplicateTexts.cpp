#include "ui/duplicates/DuplicateTexts.h"

#include "base/GTranslationLoader.h"
#include "catalogue/records/LocaleAwareFunctions.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace {

QString dot()
{
    return QStringLiteral(" · ");
}

QString number(int value)
{
    return GTranslationLoader::instance()->locale().toString(value);
}

} // namespace

QString DuplicateTexts::likeness(DuplicateGroup::Likeness likeness)
{
    switch (likeness) {
    case DuplicateGroup::SameContent:
        return tr("same content");
    case DuplicateGroup::SameStitches:
        return tr("same stitches");
    case DuplicateGroup::NearlySameStitches:
        break;
    }
    return tr("nearly the same stitches");
}

QString DuplicateTexts::certainty(DuplicateGroup::Likeness likeness)
{
    switch (likeness) {
    case DuplicateGroup::SameContent:
        return tr("Certain: these files are the same, byte by byte.");
    case DuplicateGroup::SameStitches:
        return tr("Sure: other files, but every stitch is the same, as when a design was saved in "
                  "another format. The colors may differ.");
    case DuplicateGroup::NearlySameStitches:
        break;
    }
    return tr("Very likely: no stitch differs by more than 0.2 mm, as when formats round "
              "differently. The colors and their changes may differ.");
}

QString DuplicateTexts::format(const IFile &file, bool imperial)
{
    QStringList parts{QFileInfo(file.absoluteFilePath()).suffix().toUpper(),
                      LocaleAwareFunctions::toText(file.designSize(), imperial)};
    parts.removeAll(QString());
    return parts.join(dot());
}

QString DuplicateTexts::counts(const IFile &file)
{
    const int colors = file.threads().size();
    return tr("%1 stitches", nullptr, file.stitchCount()).arg(number(file.stitchCount())) + dot() +
           tr("%n color(s)", nullptr, colors);
}

QString DuplicateTexts::tags(const IFile &file)
{
    QStringList parts;
    if (file.isFavorite())
        parts.append(QStringLiteral("★"));
    const QStringList tags = file.tags();
    if (!tags.isEmpty())
        parts.append(tags.join(QStringLiteral(", ")));
    return parts.join(QLatin1Char(' '));
}

QString DuplicateTexts::everything(const IFile &file, bool imperial)
{
    QStringList lines{QDir::toNativeSeparators(file.absoluteFilePath()), format(file, imperial),
                      counts(file)};
    if (file.isFavorite())
        lines.append(tr("favorite"));
    if (!file.tags().isEmpty())
        lines.append(tr("Tags: %1").arg(file.tags().join(QStringLiteral(", "))));
    if (!file.notes().isEmpty())
        lines.append(tr("Notes: %1").arg(file.notes()));
    return lines.join(QLatin1Char('\n'));
}

QString DuplicateTexts::singleLine(const QString &text)
{
    QString line = text;
    for (QChar &c : line) {
        if (c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line ||
            c.category() == QChar::Separator_Paragraph)
            c = QLatin1Char(' ');
    }
    return line;
}
