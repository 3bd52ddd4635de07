#include "base/FileNameEncoding.h"

#include <QTextCodec>

void FileNameEncoding::useUtf8()
{
#ifdef Q_OS_UNIX
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
}
