#include "preview/sheets/SheetDesign.h"

#include "base/GlobalSettings.h"
#include "catalogue/records/IFile.h"

#include <QFileInfo>

SheetDesign SheetDesign::of(const IFile &file)
{
    SheetDesign design;
    design.path = file.absoluteFilePath();
    design.fileSize = file.fileSize();
    const QByteArray hash = file.contentHash();
    if (!hash.isEmpty())
        design.previewPath = GlobalSettings().previewImagePath(hash);
    design.tags = file.tags();
    design.notes = file.notes();
    design.isFavorite = file.isFavorite();
    design.size = file.designSize();
    design.stitches = file.stitchCount();
    design.colors = file.threadsProp()->count();
    return design;
}

QString SheetDesign::fileName() const
{
    return QFileInfo(path).fileName();
}

QString SheetDesign::folderOf(const QString &path)
{
    return QFileInfo(path).path();
}

QVector<SheetDesign> SheetDesign::of(const QList<QSharedPointer<IFile>> &files)
{
    QVector<SheetDesign> designs;
    designs.reserve(files.size());
    for (const QSharedPointer<IFile> &file : files)
        designs.append(of(*file));
    return designs;
}

SheetDesign SheetDesign::of(const QString &path)
{
    SheetDesign design;
    design.path = path;
    design.fileSize = QFileInfo(path).size();
    return design;
}
