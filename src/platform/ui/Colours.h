#pragma once

#include <QColor>

// A colour between two: `percent` (0 to 100) of the first, the rest of the second.
inline QColor mixed(const QColor &one, const QColor &other, int percent) {
    const auto part = [percent](int a, int b) { return (a * percent + b * (100 - percent)) / 100; };
    return {part(one.red(), other.red()), part(one.green(), other.green()),
            part(one.blue(), other.blue())};
}
