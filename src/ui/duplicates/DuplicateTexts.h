#pragma once

#include "catalogue/duplicates/DuplicateGroup.h"
#include "catalogue/records/IFile.h"

#include <QCoreApplication>
#include <QString>

/** What is said about duplicates and the designs among them. */
class DuplicateTexts
{
    Q_DECLARE_TR_FUNCTIONS(DuplicateTexts)

public:
    /** In a word or two. */
    static QString likeness(DuplicateGroup::Likeness likeness);
    /** In a sentence: how sure it is. */
    static QString certainty(DuplicateGroup::Likeness likeness);

    /** "PES · 104 mm x 98 mm". */
    static QString format(const IFile &file, bool imperial);
    /** "12,345 stitches · 14 colors". */
    static QString counts(const IFile &file);
    /** The star and the tags; empty without. */
    static QString tags(const IFile &file);
    /** All of it and the path, a line each. */
    static QString everything(const IFile &file, bool imperial);

    /** @p text without what would break its line. */
    static QString singleLine(const QString &text);
};
