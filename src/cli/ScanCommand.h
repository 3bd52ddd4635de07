#pragma once

#include <QCoreApplication>
#include <QStringList>

class ScanController;

/** Adds folders to the catalogue and brings it into line with the disk. */
class ScanCommand
{
    Q_DECLARE_TR_FUNCTIONS(ScanCommand)

public:
    /** @return the exit status of the process */
    static int run(const QStringList &arguments);

private:
    static int scan(const QStringList &folders);
    static void synchronise(ScanController &controller, const QStringList &folders);
};
