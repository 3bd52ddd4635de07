#pragma once

#include "catalogue/records/IFile.h"
#include "catalogue/records/Thread.h"
#include "properties/core/PropertyStruct.h"

class Project;

/** A record of the catalogue: the children of one "file" element. */
class File : public IFile, public PropertyStruct
{
public:
    explicit File(Project *project);

    QString absoluteFilePath() const override { return m_absoluteFilePath->value(); }
    void setAbsoluteFilePath(const QString &path) override;
    PropertyString *absoluteFilePathProp() const override { return m_absoluteFilePath; }

    int fileSize() const override { return m_fileSize->value(); }
    void setFileSize(int size) override;
    PropertyInt *fileSizeProp() const override { return m_fileSize; }

    unsigned int modificationDate() const override { return m_modificationDate->value(); }
    void setModificationDate(unsigned int seconds) override;
    PropertyUnsignedInt *modificationDateProp() const override { return m_modificationDate; }

    QByteArray contentHash() const override;
    void setContentHash(const QByteArray &hash) override;
    PropertyString *contentHashProp() const override { return m_contentHash; }

    QString name() const override { return m_name->value(); }
    void setName(const QString &name) override;
    PropertyString *nameProp() const override { return m_name; }

    QSizeF designSize() const override { return m_designSize->value(); }
    void setDesignSize(const QSizeF &size) override;
    PropertySizeF *designSizeProp() const override { return m_designSize; }

    int stitchCount() const override { return m_stitchCount->value(); }
    void setStitchCount(int count) override;
    PropertyInt *stitchCountProp() const override { return m_stitchCount; }

    QList<QSharedPointer<IThread>> threads() const override;
    void setThreads(const QList<QSharedPointer<IThread>> &threads) override;
    PropertyListT<Thread> *threadsProp() const override { return m_threads; }

    QString notes() const override { return m_notes->value(); }
    void setNotes(const QString &notes) override;
    PropertyString *notesProp() const override { return m_notes; }

    QStringList tags() const override { return m_tags->value(); }
    void setTags(const QStringList &tags) override;
    void addTag(const QString &tag) override;
    void removeTag(const QString &tag) override;
    PropertyStringList *tagsProp() const override { return m_tags; }

    bool isFavorite() const override { return m_isFavorite->value(); }
    void setFavorite(bool favorite) override;
    PropertyBool *isFavoriteProp() const override { return m_isFavorite; }

private:
    PropertyString *m_absoluteFilePath;
    PropertyInt *m_fileSize;
    PropertyUnsignedInt *m_modificationDate;
    PropertyString *m_contentHash;
    PropertyString *m_name;
    PropertySizeF *m_designSize;
    PropertyInt *m_stitchCount;
    PropertyListT<Thread> *m_threads;
    PropertyString *m_notes;
    PropertyStringList *m_tags;
    PropertyBool *m_isFavorite;
};

/** The order of the file list: by path, code unit by code unit. */
inline bool operator<(const File &a, const File &b)
{
    return a.absoluteFilePathProp()->value() < b.absoluteFilePathProp()->value();
}
