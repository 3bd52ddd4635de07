#pragma once

#include "catalogue/records/IFile.h"

#include <QAbstractListModel>
#include <QList>
#include <QSharedPointer>

/** The designs of one group, a row each. */
class DuplicateMembersModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using Files = QList<QSharedPointer<IFile>>;

    /** @param imperial whether sizes are told in inches */
    DuplicateMembersModel(bool imperial, QObject *parent);

    void setFiles(const Files &files);
    const Files &files() const { return m_files; }
    bool isImperial() const { return m_imperial; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    const bool m_imperial;
    Files m_files;
};
