#include "preview/sheets/SheetDesigns.h"

#include "catalogue/records/IFile.h"

#include <numeric>
#include <QHash>

SheetDesigns::SheetDesigns(const QVector<SheetDesign> &designs)
    : m_designs(designs), m_order(designs.size())
{
    std::iota(m_order.begin(), m_order.end(), 0);
}

SheetDesigns SheetDesigns::of(const QList<QSharedPointer<IFile>> &files)
{
    SheetDesigns designs;
    designs.m_files = files;
    designs.m_order.resize(files.size());
    std::iota(designs.m_order.begin(), designs.m_order.end(), 0);
    return designs;
}

SheetDesign SheetDesigns::at(int index) const
{
    const int place = m_order.at(index);
    return m_files.isEmpty() ? m_designs.at(place) : SheetDesign::of(*m_files.at(place));
}

QString SheetDesigns::pathAt(int index) const
{
    const int place = m_order.at(index);
    return m_files.isEmpty() ? m_designs.at(place).path : m_files.at(place)->absoluteFilePath();
}

QString SheetDesigns::folderAt(int index) const
{
    return SheetDesign::folderOf(pathAt(index));
}

QVector<SheetDesign> SheetDesigns::mid(int first, int count) const
{
    QVector<SheetDesign> designs;
    designs.reserve(count);
    for (int i = first; i < first + count; ++i)
        designs.append(at(i));
    return designs;
}

QVector<int> SheetDesigns::groupByFolder()
{
    QHash<QString, int> groupOf;
    QVector<QVector<int>> groups;
    for (int i = 0; i < size(); ++i) {
        const QString folder = folderAt(i);
        const int group = groupOf.value(folder, groups.size());
        if (group == groups.size()) {
            groupOf.insert(folder, group);
            groups.append(QVector<int>());
        }
        groups[group].append(m_order.at(i));
    }
    m_order.clear();
    QVector<int> sizes;
    for (const QVector<int> &group : qAsConst(groups)) {
        m_order += group;
        sizes.append(group.size());
    }
    return sizes;
}
