#include "cli/EditCommand.h"

#include "cli/Console.h"
#include "cli/DesignSelection.h"
#include "cli/ExclusiveController.h"
#include "cli/ExitStatus.h"

int EditCommand::edit(const DesignSelection &selection, const Edit &edit)
{
    ExclusiveController controller;
    controller.open();
    const DesignSelection::Files files = selection.from(controller);
    for (const auto &file : files)
        edit(*file, *controller.project());
    controller.saveProjectIfModified();
    Console::remark(tr("%n design(s)", nullptr, files.size()));
    return Success;
}
