#pragma once

#include "cli/Command.h"
#include <functional>
#include <QCoreApplication>

class DesignSelection;
class IFile;
class Project;

/** A command that changes what the user attached to designs. */
class EditCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(EditCommand)

public:
    bool usesCatalogue() const override { return true; }
    bool writes() const override { return true; }

protected:
    /** Changes one design. @throws Error; then none is changed */
    using Edit = std::function<void(IFile &, Project &)>;

    /**
     * All or nothing: changes the designs and saves the catalogue.
     * @return the exit status of the process
     * @throws CommandError or Error when nothing was changed
     */
    static int edit(const DesignSelection &selection, const Edit &edit);
};
