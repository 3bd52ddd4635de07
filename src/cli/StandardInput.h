#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

/** What comes from the process's standard input, or from a file in its place. */
class StandardInput
{
    Q_DECLARE_TR_FUNCTIONS(StandardInput)

public:
    /** The argument that stands for standard input or output. */
    static bool isDash(const QString &name) { return name == QLatin1String("-"); }

    /** All bytes, up to the end. @throws Error when they cannot be read or are too many */
    static QByteArray readAll();

    /** The same of the file @p name, or of standard input for a dash. @throws Error */
    static QByteArray readAll(const QString &name);

    /**
     * The names of files, one per line, or each with a NUL behind it.
     * @throws UsageError for a NUL among lines
     * @throws Error
     */
    static QStringList fileNames(bool nullSeparated);
};
