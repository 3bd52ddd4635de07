#pragma once

#include <QList>
#include <QPair>
#include <QString>

/** Pairs of a key and a value, in the order in which they were added. */
template <typename T>
using KeyValueList = QList<QPair<QString, T>>;
