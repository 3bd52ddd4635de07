#include "app/addons/GFileAssociationHandler.h"

void GFileAssociationHandler::registerFileType(const QString &, const QString &, const QString &,
                                               const QString &)
{
}

void GFileAssociationHandler::registerCommand(const QString &, const QString &) {}

void GFileAssociationHandler::enableShellOpen() {}

bool GFileAssociationHandler::nativeEventFilter(const QByteArray &, void *,
                                                QtEvents::NativeResult *)
{
    return false;
}
