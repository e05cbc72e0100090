#include "platform/core/Nearest.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

// Words of at least so many letters may differ in two of them, shorter ones in one.
constexpr qsizetype longWord = 6;

// How many letters must be put in, left out, replaced or swapped with the next to make one word of
// the other.
int distanceOf(const QString &a, const QString &b) {
    const QString one = a.toLower(), other = b.toLower();
    const size_t width = size_t(other.size()) + 1;
    std::vector<std::vector<int>> rows(size_t(one.size()) + 1, std::vector<int>(width));
    for (size_t j = 0; j < width; ++j) rows[0][j] = int(j);
    for (size_t i = 1; i < rows.size(); ++i) {
        rows[i][0] = int(i);
        for (size_t j = 1; j < width; ++j) {
            const QChar from = one[qsizetype(i) - 1], to = other[qsizetype(j) - 1];
            rows[i][j] = std::min({rows[i - 1][j - 1] + (from == to ? 0 : 1), rows[i - 1][j] + 1,
                                   rows[i][j - 1] + 1});
            const bool isSwapped =
                i > 1 && j > 1 && from == other[qsizetype(j) - 2] && to == one[qsizetype(i) - 2];
            if (isSwapped) rows[i][j] = std::min(rows[i][j], rows[i - 2][j - 2] + 1);
        }
    }
    return rows.back().back();
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
