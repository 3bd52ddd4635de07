#pragma once

#include <functional>
#include <QHash>
#include <QString>
#include <QVariant>

/**
 * Takes usage events from whoever counts, so that the counting needs no network: the
 * organiser hands them to its metrics, the companion to nobody. Values must be JSON's
 * own types.
 */
using UsageEventSink =
    std::function<void(const QString &name, const QHash<QString, QVariant> &properties)>;
