#include "app/frame/GFileType.h"

QString GFileType::windowClassName() const
{
    return QString::fromLatin1(windowClass->className());
}

QObject *GFileType::newWindow() const
{
    return windowClass->newInstance();
}
