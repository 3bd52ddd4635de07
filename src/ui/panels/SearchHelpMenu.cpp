#include "ui/panels/SearchHelpMenu.h"

#include "catalogue/query/QueryFields.h"

SearchHelpMenu::SearchHelpMenu(QWidget *parent) : QMenu(parent)
{
    addAction(tr("Designs that ..."))->setEnabled(false);
    for (const QueryField &field : QueryFields::all()) {
        // What follows the tabulator stands in the column of the shortcuts.
        const QString text = field.example + QLatin1Char('\t') + field.meaning();
        const QString name = field.name;
        connect(addAction(text), &QAction::triggered, this,
                [this, name] { emit fieldChosen(name); });
    }
    addSeparator();
    addAction(tr("Several fields hold together; a minus before one asks for the opposite."))
        ->setEnabled(false);
    addAction(tr("Quotation marks keep words together. Tab completes fields and tags."))
        ->setEnabled(false);
}
