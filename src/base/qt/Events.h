#pragma once

#include <QtGlobal>

class QEnterEvent;
class QEvent;

/** Types that QWidget and event filters hand over, and that Qt 6 changed. */
namespace QtEvents {

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
using Enter = QEvent;
using NativeResult = long;
#else
using Enter = QEnterEvent;
using NativeResult = qintptr;
#endif

} // namespace QtEvents
