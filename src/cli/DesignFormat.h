#pragma once

#include "catalogue/records/IFile.h"
#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

/**
 * A line of the user's own form: text, in which "{name}" stands for the design's name, and
 * so on for all columns of the CSV form; "{{" is a brace, "\t" a tab, "\n" the end of a line
 * and "\\" a backslash.
 */
class DesignFormat
{
    Q_DECLARE_TR_FUNCTIONS(DesignFormat)

public:
    /** @throws UsageError when @p text has a field that there is not */
    explicit DesignFormat(const QString &text);

    QString line(const IFile &file) const;

    /** All columns, in their order. */
    static QStringList columns();
    /** What stands in column @p name of columns(). */
    static QString value(const IFile &file, const QString &name);

private:
    int readField(const QString &text, int start);

    struct Piece
    {
        bool isField;
        QString text;
    };
    QVector<Piece> m_pieces;
};
