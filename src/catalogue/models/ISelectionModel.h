#pragma once

#include "catalogue/records/IFile.h"

#include <QList>
#include <QObject>
#include <QSharedPointer>

/** Holds which designs are selected, in the order given. Main thread only. */
class ISelectionModel : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /** Announces also when nothing changes. */
    virtual void setSelection(const QList<QSharedPointer<IFile>> &files) = 0;

    /** Selects all designs of the catalogue, also those that aren't shown. */
    virtual void selectAll() = 0;
    virtual void clearSelection() = 0;
    virtual QList<QSharedPointer<IFile>> selectedFiles() const = 0;

signals:
    void selectionChanged(QList<QSharedPointer<IFile>> files);
};
