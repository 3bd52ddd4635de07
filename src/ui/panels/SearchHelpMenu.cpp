#include "ui/panels/SearchHelpMenu.h"

#include "catalogue/query/QueryFields.h"

SearchHelpMenu::SearchHelpMenu(QWidget *parent) : QMenu(parent)
{
    addAction(tr("Designs that ..."))->setEnabled(false);
    for (const QueryField &field : QueryFields::all()) {
        const QString name = field.name;
        connect(addRow(field.example, field.meaning()), &QAction::triggered, this,
                [this, name] { emit fieldChosen(name); });
    }
    addSeparator();
    addRow(QStringLiteral("-tag:done"), tr("don't, by a minus before any field"))
        ->setEnabled(false);
    addRow(QStringLiteral("type:pes rose"), tr("fulfill all that is asked for"))->setEnabled(false);
    addRow(tr("Tab"), tr("completes fields and tags while you type"))->setEnabled(false);
}

QAction *SearchHelpMenu::addRow(const QString &example, const QString &meaning)
{
    // What follows the tabulator stands in the column of the shortcuts.
    return addAction(example + QLatin1Char('\t') + meaning);
}
