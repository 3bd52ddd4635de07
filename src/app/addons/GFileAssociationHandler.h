#pragma once

#include "base/qt/Events.h"

#include <QByteArray>
#include <QString>

/**
 * Where a platform ties file types to the program while it runs. This one ties
 * them by metadata that is installed with the program, so there is nothing to do.
 */
class GFileAssociationHandler
{
public:
    virtual ~GFileAssociationHandler() = default;

    virtual void registerFileType(const QString &name, const QString &extension,
                                  const QString &description, const QString &icon);
    virtual void registerCommand(const QString &name, const QString &command);
    virtual void enableShellOpen();

    /** True when the event is used up; false here. */
    virtual bool nativeEventFilter(const QByteArray &eventType, void *message,
                                   QtEvents::NativeResult *result);
};
