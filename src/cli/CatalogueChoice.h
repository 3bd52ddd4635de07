#pragma once

#include <QCommandLineOption>
#include <QCoreApplication>

class CommandLine;

/** Which catalogue a command works on: the organiser's own, or a file of the user's choice. */
class CatalogueChoice
{
    Q_DECLARE_TR_FUNCTIONS(CatalogueChoice)

public:
    /** What every command knows that uses the catalogue. */
    static QCommandLineOption option();

    /** From now on the catalogue is what @p line says. @throws UsageError */
    static void use(const CommandLine &line);

    /** @throws Error when there is no catalogue yet */
    static void expectCatalogue();

    /**
     * A scan keeps pictures beside the catalogue and removes those that nobody needs.
     * @throws UsageError when others may have theirs in the folder of the chosen catalogue
     */
    static void expectRoomForPictures();
};
