#pragma once

#include "preview/drawing/SewingOrder.h"

#include <QCoreApplication>
#include <QMetaType>
#include <QSharedPointer>
#include <QString>

/** A design that was read from a file, or why that could not be done. */
struct ReadDesign
{
    Q_DECLARE_TR_FUNCTIONS(ReadDesign)

public:
    QString path;
    /** Null where the file could not be read. */
    QSharedPointer<const SewingOrder> order;
    /** For the user; empty where the file could be read. */
    QString error;

    /** Reads the file of that name. Any thread; never throws. */
    static ReadDesign fromFile(const QString &path);
};

Q_DECLARE_METATYPE(ReadDesign)
