#include "catalogue/models/SortOrder.h"

#include "catalogue/query/DesignFacts.h"
#include "catalogue/query/DesignPath.h"
#include "catalogue/records/LocaleAwareFunctions.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <QHash>
#include <utility>
#include <vector>

namespace {

using Files = QList<QSharedPointer<IFile>>;
using Values = std::vector<double>;

constexpr double Unknown = std::numeric_limits<double>::infinity();

const QString Descending = QStringLiteral(":desc");
const QString Ascending = QStringLiteral(":asc");

double area(const IFile &file)
{
    const QSizeF size = file.designSize();
    return size.width() < 0 || size.height() < 0 ? Unknown : size.width() * size.height();
}

/** The place of each file's folder among all folders. */
Values folderRanks(const Files &files)
{
    QStringList folders;
    folders.reserve(files.count());
    for (const auto &file : files) {
        const QString path = file->absoluteFilePath();
        const QStringView folder = DesignPath::folder(path);
        // As a rule the file before lies in the same one.
        const bool same = !folders.isEmpty() && folders.constLast() == folder;
        folders.append(same ? folders.constLast() : folder.toString());
    }
    QStringList sorted = folders;
    sorted.removeDuplicates();
    LocaleAwareFunctions::sort(sorted);
    QHash<QString, int> ranks;
    for (int i = 0; i < sorted.count(); ++i)
        ranks.insert(sorted.at(i), i);
    Values values;
    values.reserve(std::size_t(files.count()));
    for (const QString &folder : std::as_const(folders))
        values.push_back(ranks.value(folder));
    return values;
}

template <class ValueOf>
Values valuesOf(const Files &files, ValueOf valueOf)
{
    Values values;
    values.reserve(std::size_t(files.count()));
    for (const auto &file : files)
        values.push_back(valueOf(*file));
    return values;
}

/** What each file is sorted by. */
Values sortValues(SortOrder::Key key, const Files &files)
{
    switch (key) {
    case SortOrder::Size:
        return valuesOf(files, area);
    case SortOrder::Stitches:
        return valuesOf(files, [](const IFile &file) {
            return DesignFacts::areKnown(file) ? file.stitchCount() : Unknown;
        });
    case SortOrder::Colors:
        return valuesOf(files, [](const IFile &file) {
            return DesignFacts::areKnown(file) ? file.threadsProp()->count() : Unknown;
        });
    case SortOrder::Date:
        return valuesOf(files, [](const IFile &file) {
            return file.modificationDate() > 0 ? file.modificationDate() : Unknown;
        });
    default:
        return folderRanks(files);
    }
}

} // namespace

QStringList SortOrder::keyNames()
{
    return {QStringLiteral("name"),   QStringLiteral("size"), QStringLiteral("stitches"),
            QStringLiteral("colors"), QStringLiteral("date"), QStringLiteral("folder")};
}

std::optional<SortOrder> SortOrder::fromText(const QString &text)
{
    SortOrder order;
    QString key = text.toLower();
    order.descending = key.endsWith(Descending);
    if (order.descending)
        key.chop(Descending.length());
    else if (key.endsWith(Ascending))
        key.chop(Ascending.length());
    const int index = keyNames().indexOf(key);
    if (index < 0)
        return std::nullopt;
    order.key = Key(index);
    return order;
}

QString SortOrder::toText() const
{
    return keyNames().at(key) + (descending ? Descending : QString());
}

std::vector<int> SortOrder::order(const Files &byName) const
{
    std::vector<int> indexes(std::size_t(byName.count()));
    if (key == Name) {
        std::iota(indexes.begin(), indexes.end(), 0);
        if (descending)
            std::reverse(indexes.begin(), indexes.end());
        return indexes;
    }
    const Values values = sortValues(key, byName);
    std::vector<std::pair<double, int>> keyed;
    keyed.reserve(values.size());
    for (const double value : values)
        keyed.emplace_back(descending && value != Unknown ? -value : value, int(keyed.size()));
    // The index that comes second keeps what is equal in its order.
    std::sort(keyed.begin(), keyed.end());
    std::transform(keyed.begin(), keyed.end(), indexes.begin(),
                   [](const auto &entry) { return entry.second; });
    return indexes;
}
