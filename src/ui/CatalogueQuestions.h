#pragma once

#include <QCoreApplication>
#include <QString>

class Error;
class QWidget;

/** What the user is asked when the catalogue can't be read or written. */
class CatalogueQuestions
{
    Q_DECLARE_TR_FUNCTIONS(CatalogueQuestions)

public:
    /** The catalogue can't be used; false when the user doesn't want to try again. */
    static bool wantsToTryAgain(const Error &error);

    enum AtEnd { TryToSave, SaveCopy, QuitUnsaved, Stay };
    /** The last changes can't be saved. */
    static AtEnd askAtEnd(QWidget *parent, const QString &reason);

    /** Where a copy of the catalogue is to go; empty when the user has changed his mind. */
    static QString chooseCopy(QWidget *parent);
};
