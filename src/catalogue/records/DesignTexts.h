#pragma once

#include <QCoreApplication>
#include <QString>

/** Facts of a design in the words and numbers of the program's language. */
class DesignTexts
{
    Q_DECLARE_TR_FUNCTIONS(DesignTexts)

public:
    static QString number(int value);

    /** A length of thread, given in tenths of a millimetre, in metres or yards. */
    static QString threadLength(double units, bool imperial);
};
