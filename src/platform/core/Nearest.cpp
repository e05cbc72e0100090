#include "platform/core/Nearest.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

// Words of at least so many letters may differ in two of them, shorter ones in one.
constexpr qsizetype longWord = 6;

// How many letters must be put in, left out or replaced to make one word of the other.
int distanceOf(const QString &a, const QString &b) {
    std::vector<int> row(size_t(b.size()) + 1);
    for (size_t j = 0; j < row.size(); ++j) row[j] = int(j);
    for (qsizetype i = 0; i < a.size(); ++i) {
        int diagonal = row[0];
        row[0] = int(i) + 1;
        for (size_t j = 1; j < row.size(); ++j) {
            const bool isSame = a[i].toLower() == b[qsizetype(j) - 1].toLower();
            const int replaced = diagonal + (isSame ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

// The only known word for which something holds.
template <typename Holds>
QString onlyOne(const QStringList &known, const Holds &holds) {
    if (std::count_if(known.begin(), known.end(), holds) != 1) return {};
    return *std::find_if(known.begin(), known.end(), holds);
}

}  // namespace

QString nearestOf(const QString &word, const QStringList &known) {
    int smallest = word.size() < longWord ? 2 : 3;
    QString nearest;
    for (const QString &one : known) {
        const bool isFar = std::abs(one.size() - word.size()) >= smallest;
        const int distance = isFar ? smallest : distanceOf(word, one);
        if (distance >= smallest) continue;
        smallest = distance;
        nearest = one;
    }
    if (!nearest.isEmpty() || word.isEmpty()) return nearest;
    nearest = onlyOne(known, [&](const QString &one) { return one.startsWith(word); });
    if (!nearest.isEmpty()) return nearest;
    return onlyOne(known, [&](const QString &one) { return one.endsWith(u'.' + word); });
}
