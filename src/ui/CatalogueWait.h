#pragma once

#include <QCoreApplication>

class FileLock;

/** Waits until no other process works on the catalogue. */
class CatalogueWait
{
    Q_DECLARE_TR_FUNCTIONS(CatalogueWait)

public:
    /**
     * Takes the lock of those who write the catalogue. While another process holds it a
     * small window tells so, until the lock is free or the user has enough. Where there
     * are no locks there is nothing to wait for.
     * @return false when the user has cancelled
     */
    static bool forLock(FileLock &lock);

private:
    static QString reasonOf(const FileLock &lock);
};
