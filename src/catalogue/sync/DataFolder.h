#pragma once

#include <QCoreApplication>
#include <QString>

/** The folder of the catalogue, its previews and all else that belongs to it. */
class DataFolder
{
    Q_DECLARE_TR_FUNCTIONS(DataFolder)

public:
    /**
     * Gets it ready for a program that is going to write there: makes it where it is
     * missing, keeps other users out and clears away what killed programs have left.
     * Throws CatalogueFolderMissingError when it is missing together with the folder above
     * it, though the user has chosen it: then it is rather its drive that is missing.
     */
    static void prepare(const QString &path);

private:
    static void requireDrive(const QString &path);
};
