#pragma once

#include <QString>
#include <functional>

class QAbstractItemView;
class QEvent;
class QModelIndex;

// Answers an event that asks for the tip of an item: where its column cuts the item, the tip is the
// item's whole text, as plain text. False for any other event.
bool showItemTip(QAbstractItemView *view, QEvent *event,
                 const std::function<QString(const QModelIndex &)> &wholeText);
