#include "preview/sheets/SheetDesign.h"

#include "base/GlobalSettings.h"
#include "catalogue/records/IFile.h"

#include <QFileInfo>

namespace {

SheetDesign fromRecord(const IFile &file, const QString &previews)
{
    SheetDesign design;
    design.path = file.absoluteFilePath();
    design.fileSize = file.fileSize();
    if (!file.contentHash().isEmpty())
        design.previewPath =
            previews + QString::fromLatin1(file.contentHash().toHex()) + QStringLiteral(".png");
    design.tags = file.tags();
    design.notes = file.notes();
    design.isFavorite = file.isFavorite();
    design.size = file.designSize();
    design.stitches = file.stitchCount();
    design.colors = file.threads().size();
    return design;
}

} // namespace

QString SheetDesign::fileName() const
{
    return QFileInfo(path).fileName();
}

QString SheetDesign::folder() const
{
    return QFileInfo(path).path();
}

QVector<SheetDesign> SheetDesign::of(const QList<QSharedPointer<IFile>> &files)
{
    const QString previews = GlobalSettings().previewImagePath({});
    QVector<SheetDesign> designs;
    designs.reserve(files.size());
    for (const QSharedPointer<IFile> &file : files)
        designs.append(fromRecord(*file, previews));
    return designs;
}

SheetDesign SheetDesign::of(const QString &path)
{
    SheetDesign design;
    design.path = path;
    design.fileSize = QFileInfo(path).size();
    return design;
}
