#pragma once

#include <QCoreApplication>
#include <QStringList>

class DesignFile;

/** Reads designs and tells about them. */
class InspectCommand
{
    Q_DECLARE_TR_FUNCTIONS(InspectCommand)

public:
    /** @return the exit status of the process */
    static int run(const QStringList &arguments);

private:
    static bool render(const DesignFile &file, const QString &target, int size);
};
