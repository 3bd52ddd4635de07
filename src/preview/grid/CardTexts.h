#pragma once

#include <QCoreApplication>
#include <QString>

class IFile;

/** A card in words, for its label and for those who do not see it. */
class CardTexts
{
    Q_DECLARE_TR_FUNCTIONS(CardTexts)

public:
    /** The name of the file, on one line. */
    static QString name(const IFile &file);

    /**
     * What else is known of the design: size, stitches, colours and tags, and whether it is
     * a favourite.
     */
    static QString description(const IFile &file);
};
