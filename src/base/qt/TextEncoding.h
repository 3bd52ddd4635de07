#pragma once

#include <QTextStream>

namespace QtTextEncoding {

/** Has the stream write UTF-8, which Qt 6 does unasked and Qt 5 by the locale. */
inline void useUtf8(QTextStream &stream)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    stream.setCodec("UTF-8");
#else
    Q_UNUSED(stream)
#endif
}

} // namespace QtTextEncoding
