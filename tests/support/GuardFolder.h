#pragma once

#include <QFileInfo>
#include <QTemporaryDir>

/**
 * A temporary folder for processes behind the single-instance guard. The keys of their shared
 * memory are made of the last 16 bits of the inodes of files in it. A file system on disk gives
 * the same few numbers out again and again, so that programs in different folders would take each
 * other for their primary; one in memory counts on.
 */
class GuardFolder : public QTemporaryDir
{
public:
    GuardFolder() : QTemporaryDir(base() + QStringLiteral("/hl-XXXXXX")) {}

private:
    static QString base()
    {
        const QString memory = QStringLiteral("/dev/shm");
        return QFileInfo(memory).isWritable() ? memory : QStringLiteral("/tmp");
    }
};
