#include "online/services/VersionCompare.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

QStringList numbers(const QString &version)
{
    static const QRegularExpression separator(QStringLiteral("[^0-9]+"));
    return version.split(separator, Qt::SkipEmptyParts);
}

} // namespace

int VersionCompare::compare(const QString &a, const QString &b)
{
    const QStringList ofA = numbers(a);
    const QStringList ofB = numbers(b);
    const int common = qMin(ofA.size(), ofB.size());
    for (int i = 0; i < common; ++i) {
        const int numberA = ofA.at(i).toInt();
        const int numberB = ofB.at(i).toInt();
        if (numberA != numberB)
            return numberA > numberB ? 1 : -1;
    }
    if (ofA.size() == common)
        return ofB.size() > common ? 1 : 0;
    return -1;
}
