#include "base/Spelling.h"

#include <algorithm>
#include <numeric>
#include <QVector>

namespace {

constexpr int ShortestMisspelling = 3;
constexpr int LongestMisspelling = 20;
constexpr int MostMistakes = 2;

/** How many letters have to be added, left out, replaced or swapped with the next one. */
int editDistance(const QString &from, const QString &to)
{
    QVector<int> beforeLast;
    QVector<int> last(to.length() + 1);
    std::iota(last.begin(), last.end(), 0);
    for (int i = 0; i < from.length(); ++i) {
        QVector<int> row(to.length() + 1, i + 1);
        for (int k = 0; k < to.length(); ++k) {
            const int replaced = last.at(k) + (from.at(i) == to.at(k) ? 0 : 1);
            row[k + 1] = std::min({replaced, row.at(k) + 1, last.at(k + 1) + 1});
            if (i > 0 && k > 0 && from.at(i) == to.at(k - 1) && from.at(i - 1) == to.at(k))
                row[k + 1] = std::min(row.at(k + 1), beforeLast.at(k - 1) + 1);
        }
        beforeLast = last;
        last = row;
    }
    return last.constLast();
}

} // namespace

QString Spelling::nearest(const QString &text, const QStringList &words)
{
    if (text.length() < ShortestMisspelling || text.length() > LongestMisspelling)
        return {};
    QString nearest;
    // Of a short word one letter may be wrong, of a long one two.
    int bound = std::min(MostMistakes, int(text.length()) / 3);
    for (const QString &word : words) {
        const int distance = editDistance(text.toLower(), word);
        if (distance <= bound) {
            nearest = word;
            bound = distance - 1;
        }
    }
    return nearest;
}
