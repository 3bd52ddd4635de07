#pragma once

#include <QMetaObject>
#include <QString>

/** A kind of document and the class of window that shows it. */
class GFileType
{
public:
    QString name;
    QString description;
    QString extension; ///< With its dot.
    QString icon;      ///< Resource path.
    bool readable = false;
    bool writable = false;
    const QMetaObject *windowClass = nullptr;

    /** The class name of the windows made by newWindow(). */
    QString windowClassName() const;

    /**
     * A new window of the class, owned by the caller; null when the class has
     * no invokable constructor without arguments.
     */
    QObject *newWindow() const;
};
