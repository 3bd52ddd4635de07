#pragma once

#include <QFile>
#include <QStringList>

/**
 * The rows of a table below tests/data. A row is a line of columns that are parted by " | ", where
 * "-" stands for nothing; "#" begins a remark.
 */
inline QList<QStringList> tableFile(const QString &name)
{
    QFile file(QStringLiteral(TEST_DATA_DIR "/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    QList<QStringList> rows;
    for (const QString &line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)) {
        if (!line.startsWith('#'))
            rows.append(line.split(" | ").replaceInStrings(QRegularExpression("^-$"), ""));
    }
    return rows;
}
