#pragma once

#include <functional>
#include <QByteArray>
#include <QImage>
#include <QString>

class IAbortCheck;

/**
 * Makes a preview anew whose file is there but damaged, from the hash, the path of the
 * preview and that of the design; null when it can't. Called on the worker's thread.
 */
using PreviewRepairer = std::function<QImage(const QByteArray &hash, const QString &previewPath,
                                             const QString &designPath, const IAbortCheck &abort)>;
