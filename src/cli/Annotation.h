#pragma once

#include "catalogue/records/IFile.h"
#include <QByteArray>
#include <QString>
#include <QStringList>

/** What people attached to one design, as it travels from catalogue to catalogue. */
struct Annotation
{
    QByteArray contentHash; ///< raw MD5 digest of the file's bytes; may be empty
    QString path;           ///< absolute; may be empty
    QString name;           ///< of the design, for people
    QStringList tags;
    QString notes;
    bool favorite = false;

    static Annotation of(const IFile &file);

    bool isEmpty() const { return tags.isEmpty() && notes.isEmpty() && !favorite; }

    /**
     * Adds to @p file what it has not: tags, the star, and notes below those that are there.
     * @return whether that was anything
     */
    bool addTo(IFile &file) const;

    /** Both, the second one below the first unless that has it already. */
    static QString joinedNotes(const QString &before, const QString &added);
};
