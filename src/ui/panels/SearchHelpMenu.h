#pragma once

#include <QMenu>

/** The fields of the search language with an example and the meaning of each, to choose from. */
class SearchHelpMenu : public QMenu
{
    Q_OBJECT

public:
    explicit SearchHelpMenu(QWidget *parent);

signals:
    /** The user wants to search by this field. */
    void fieldChosen(const QString &name);

private:
    QAction *addRow(const QString &example, const QString &meaning);
};
