#pragma once

#include <functional>
#include <QList>
#include <QString>

/** One thing that the user is told at the top of the window while he goes on working. */
struct Notice
{
    enum Kind {
        Information, ///< good to know; can be closed
        Problem      ///< stays until it is put right
    };

    struct Action
    {
        QString text;
        std::function<void()> run;
    };

    QString id; ///< a later notice of the same id takes this one's place
    Kind kind = Information;
    QString text; ///< plain text
    QList<Action> actions;
};
