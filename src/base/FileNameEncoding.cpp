#include "base/FileNameEncoding.h"

#include <QtGlobal>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

void FileNameEncoding::useUtf8()
{
// Qt 6 knows no other.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) && defined(Q_OS_UNIX)
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
}
