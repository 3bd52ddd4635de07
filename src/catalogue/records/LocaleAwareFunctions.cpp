#include "catalogue/records/LocaleAwareFunctions.h"

#include "base/GTranslationLoader.h"
#include "catalogue/records/IFile.h"

#include <algorithm>
#include <QCollator>
#include <QLocale>
#include <utility>
#include <vector>

static QCollator naturalOrder()
{
    QLocale locale = QLocale::system();
    // The C locale compares code by code and knows no natural order.
    if (locale.language() == QLocale::C)
        locale = QLocale(QLocale::English);
    QCollator collator(locale);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setNumericMode(true);
    return collator;
}

/** Sorts by the collation key of @p textOf each element, made once per element. */
template <class T, class TextOf>
static void sortByKey(QList<T> &list, TextOf textOf)
{
    if (list.count() < 2)
        return;
    const QCollator collator = naturalOrder();
    std::vector<std::pair<QCollatorSortKey, T>> keyed;
    keyed.reserve(std::size_t(list.count()));
    for (const T &element : std::as_const(list))
        keyed.emplace_back(collator.sortKey(textOf(element)), element);
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const auto &a, const auto &b) { return a.first.compare(b.first) < 0; });
    std::transform(keyed.begin(), keyed.end(), list.begin(),
                   [](const auto &entry) { return entry.second; });
}

void LocaleAwareFunctions::sort(QStringList &list)
{
    sortByKey<QString>(list, [](const QString &text) { return text; });
}

void LocaleAwareFunctions::sort(QList<QSharedPointer<IFile>> &files)
{
    sortByKey(files, [](const QSharedPointer<IFile> &file) { return file->absoluteFilePath(); });
}

static QString sizeText(const QSizeF &size, bool inch, const QString &pattern,
                        const QLocale &locale)
{
    if (size.width() < 0 || size.height() < 0)
        return {};
    const double unit = inch ? 25.4 : 1.0;
    const int precision = inch ? 1 : 0;
    return pattern.arg(locale.toString(size.width() / unit, 'f', precision),
                       locale.toString(size.height() / unit, 'f', precision));
}

QString LocaleAwareFunctions::toString(const QSizeF &size, bool inch)
{
    const QString pattern = inch ? QStringLiteral("%1\" x %2\"") : QStringLiteral("%1mm x %2mm");
    return sizeText(size, inch, pattern, QLocale::c());
}

QString LocaleAwareFunctions::toText(const QSizeF &size, bool inch)
{
    return sizeText(size, inch, inch ? tr("%1\" × %2\"") : tr("%1 mm × %2 mm"),
                    GTranslationLoader::instance()->locale());
}
