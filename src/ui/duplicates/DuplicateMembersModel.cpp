#include "ui/duplicates/DuplicateMembersModel.h"

#include "ui/duplicates/DuplicateTexts.h"

#include <QFileInfo>

DuplicateMembersModel::DuplicateMembersModel(bool imperial, QObject *parent)
    : QAbstractListModel(parent), m_imperial(imperial)
{
}

void DuplicateMembersModel::setFiles(const Files &files)
{
    beginResetModel();
    m_files = files;
    endResetModel();
}

int DuplicateMembersModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_files.size();
}

QVariant DuplicateMembersModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const IFile &file = *m_files.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return DuplicateTexts::singleLine(QFileInfo(file.absoluteFilePath()).fileName());
    case Qt::ToolTipRole:
        // As plain text, whatever it looks like.
        return QStringLiteral("<p style='white-space:pre-wrap'>%1</p>")
            .arg(DuplicateTexts::everything(file, m_imperial).toHtmlEscaped());
    case Qt::AccessibleDescriptionRole:
        return DuplicateTexts::everything(file, m_imperial);
    default:
        return {};
    }
}
