#pragma once

#include <gtest/gtest.h>

#include <QLabel>

// Expects that no visible child of a window covers another, reaches out of its parent, or is lower
// than the text that it wraps.
inline void expectNothingIsCovered(const QWidget *window) {
    const auto name = [](const QWidget *w) { return w->objectName().toStdString(); };
    const auto seen = [](QWidget *w) { return w->isVisible() && !w->size().isEmpty(); };
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (!seen(widget) || !widget->parentWidget()->layout()) continue;
        EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry())) << name(widget);
        const auto *label = qobject_cast<QLabel *>(widget);
        if (label && label->wordWrap()) {
            EXPECT_LE(label->heightForWidth(label->width()), label->height()) << name(label);
        }
        for (QWidget *other :
             widget->parentWidget()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
            if (other != widget && seen(other) && !other->isWindow()) {
                EXPECT_FALSE(other->geometry().intersects(widget->geometry()))
                    << name(other) << " covers " << name(widget);
            }
    }
}
