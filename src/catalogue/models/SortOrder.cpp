#include "catalogue/models/SortOrder.h"

#include "catalogue/query/DesignFacts.h"
#include "catalogue/query/DesignPath.h"
#include "catalogue/records/LocaleAwareFunctions.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <QHash>
#include <utility>
#include <vector>

namespace {

using Files = QList<QSharedPointer<IFile>>;
using Value = std::function<double(const IFile &)>;

constexpr double Unknown = std::numeric_limits<double>::infinity();

const QString Descending = QStringLiteral(":desc");
const QString Ascending = QStringLiteral(":asc");

double area(const IFile &file)
{
    const QSizeF size = file.designSize();
    return size.width() < 0 || size.height() < 0 ? Unknown : size.width() * size.height();
}

/** The place of each folder among all folders: few words to compare instead of many. */
Value folderRank(const Files &files)
{
    QHash<QString, double> ranks;
    QStringList folders;
    for (const auto &file : files) {
        const QString path = file->absoluteFilePath();
        const QString folder = DesignPath::folder(path).toString();
        if (!ranks.contains(folder)) {
            ranks.insert(folder, 0);
            folders.append(folder);
        }
    }
    LocaleAwareFunctions::sort(folders);
    for (int i = 0; i < folders.count(); ++i)
        ranks[folders.at(i)] = i;
    return [ranks](const IFile &file) {
        const QString path = file.absoluteFilePath();
        return ranks.value(DesignPath::folder(path).toString());
    };
}

Value valueOf(SortOrder::Key key, const Files &files)
{
    switch (key) {
    case SortOrder::Size:
        return &area;
    case SortOrder::Stitches:
        return [](const IFile &file) {
            return DesignFacts::areKnown(file) ? file.stitchCount() : Unknown;
        };
    case SortOrder::Colors:
        return [](const IFile &file) {
            return DesignFacts::areKnown(file) ? file.threadsProp()->count() : Unknown;
        };
    case SortOrder::Date:
        return [](const IFile &file) {
            return file.modificationDate() > 0 ? file.modificationDate() : Unknown;
        };
    default:
        return folderRank(files);
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

Files SortOrder::sorted(const Files &byName) const
{
    Files files = byName;
    if (key == Name) {
        if (descending)
            std::reverse(files.begin(), files.end());
        return files;
    }
    const Value value = valueOf(key, byName);
    std::vector<std::pair<double, int>> keyed;
    keyed.reserve(std::size_t(byName.count()));
    for (int i = 0; i < byName.count(); ++i) {
        const double number = value(*byName.at(i));
        keyed.emplace_back(descending && number != Unknown ? -number : number, i);
    }
    // The index that comes second keeps what is equal in its order.
    std::sort(keyed.begin(), keyed.end());
    std::transform(keyed.begin(), keyed.end(), files.begin(),
                   [&byName](const auto &entry) { return byName.at(entry.second); });
    return files;
}
