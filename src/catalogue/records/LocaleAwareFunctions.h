#pragma once

#include <QCoreApplication>
#include <QList>
#include <QSharedPointer>
#include <QSizeF>
#include <QString>
#include <QStringList>

class IFile;

/** Sorting and formatting that all lists that the user sees have in common. */
class LocaleAwareFunctions
{
    Q_DECLARE_TR_FUNCTIONS(LocaleAwareFunctions)

public:
    /** Natural order: without regard to case, 2 before 10, as the user's locale has it. */
    static void sort(QStringList &list);

    /** The same by absolute path. */
    static void sort(QList<QSharedPointer<IFile>> &files);

    /**
     * A size in millimetres as text, in inches with one decimal or in whole
     * millimetres; empty for a size that isn't known.
     */
    static QString toString(const QSizeF &size, bool inch);

    /** The same as people write it in the program's language, where there is room for it. */
    static QString toText(const QSizeF &size, bool inch);
};
