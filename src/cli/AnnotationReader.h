#pragma once

#include "cli/Annotation.h"
#include <QByteArray>
#include <QCoreApplication>
#include <QJsonObject>
#include <QList>

/**
 * Reads what "export" and "list" write for other programs. Of JSON and CSV the members and
 * columns md5, file, name, tags, notes and favorite are taken, the others let alone.
 */
class AnnotationReader
{
    Q_DECLARE_TR_FUNCTIONS(AnnotationReader)

public:
    /** @throws Error that tells which entry is wrong, when any is */
    QList<Annotation> read(const QByteArray &bytes);

private:
    void readJson(const QByteArray &bytes);
    void expectType(const QJsonObject &object, const char *name, QJsonValue::Type type) const;
    void readCsv(const QString &text);
    void addObject(const QJsonObject &object);
    void add(Annotation annotation, const QString &hash, const QString &path);
    [[noreturn]] void fail(const QString &reason) const;

    QList<Annotation> m_annotations;
    int m_entry = 0; ///< the number of the one that is read, from 1 on
};
