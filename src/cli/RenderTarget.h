#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/**
 * Where a picture of a design is to go: never over a design, and over another file only
 * when the user says so.
 */
class RenderTarget
{
    Q_DECLARE_TR_FUNCTIONS(RenderTarget)

public:
    /** @throws UsageError or Error when @p name must not be written, @p designs being read */
    static void check(const QString &name, const QStringList &designs, bool replace);

    /** @throws Error when the file cannot be written; what was there before stays then */
    static void write(const QString &name, const QByteArray &picture);
};
