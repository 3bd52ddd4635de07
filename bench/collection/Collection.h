#pragma once

#include "Chance.h"
#include "MadeUpDesign.h"

#include <QByteArray>
#include <QDir>
#include <QString>

/**
 * A collector's folders on the disk: designs in all formats in nested folders of very
 * different sizes, with copies kept twice, damaged files, and files of other kinds in
 * between. The same seed gives the same bytes, names and dates.
 */
class Collection
{
public:
    /** @param folder where it goes; made if it is missing */
    Collection(const QString &folder, unsigned long long seed);

    /** Writes @p count files of design formats. @throws std::runtime_error when one can't be
     * written
     */
    void write(int count);

private:
    void enterFolder();
    void writeDesign(int number);
    QByteArray damaged(QByteArray bytes);
    void writeFile(const QString &name, const QByteArray &bytes);

    QDir m_folder;
    Chance m_chance;
    MadeUpDesign::Pattern m_family;
    int m_member = 0;
    QString m_subFolder;
    int m_leftInFolder = 0;
    QByteArray m_lastBytes;
    QString m_lastFormat;
    int m_fileCount = 0;
};
