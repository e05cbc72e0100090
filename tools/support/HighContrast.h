#pragma once

#include <QPalette>

// White on black, as desktops have it for people who see little.
inline QPalette highContrast() {
    QPalette contrast;
    for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::Button,
                              QPalette::AlternateBase, QPalette::ToolTipBase})
        contrast.setColor(ground, Qt::black);
    for (const auto ink : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                           QPalette::PlaceholderText, QPalette::ToolTipText})
        contrast.setColor(ink, Qt::white);
    contrast.setColor(QPalette::Highlight, Qt::yellow);
    contrast.setColor(QPalette::HighlightedText, Qt::black);
    return contrast;
}
