#pragma once

#include <QColor>

// A colour between two: `percent` (0 to 100) of the first, the rest of the second.
inline QColor mixed(const QColor &one, const QColor &other, int percent) {
    const auto part = [percent](int a, int b) { return (a * percent + b * (100 - percent)) / 100; };
    return {part(one.red(), other.red()), part(one.green(), other.green()),
            part(one.blue(), other.blue())};
}

// The colour of what is wrong, in texts and outlines, on a background of the colour `window`.
inline QColor faultColour(const QColor &window) {
    return window.lightness() < 128 ? QColor(0xff, 0x8f, 0x85) : QColor(0xb3, 0x1b, 0x1b);
}
