#pragma once

#include <QCoreApplication>
#include <QRect>
#include <QString>

class IFile;
class QPainter;

/**
 * The face of a design that no scan has looked into yet, since the user stopped it before
 * or the disk did not give the file: nothing is known of it but its path.
 */
class UnreadDesign
{
    Q_DECLARE_TR_FUNCTIONS(UnreadDesign)

public:
    static bool is(const IFile &file);

    /** "Not read yet" */
    static QString text();

    /** Fills @p box, in scene units, instead of the preview. */
    static void paint(QPainter *painter, const QRect &box);
};
