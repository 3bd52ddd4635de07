#pragma once

#include <QCoreApplication>
#include <QSizeF>
#include <QStringList>

class CommandLine;
class IFilterModel;

/** Prints the catalogue, narrowed as in the organiser; never changes it. */
class ListCommand
{
    Q_DECLARE_TR_FUNCTIONS(ListCommand)

public:
    /** @return the exit status of the process */
    static int run(const QStringList &arguments);

private:
    static void addOptions(CommandLine &line);
    static int print(const CommandLine &line, const QSizeF &maxSize);
    static void applyFilters(const CommandLine &line, const QSizeF &maxSize, IFilterModel &filter);
};
