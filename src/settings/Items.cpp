#include "settings/Items.h"

#include <algorithm>

#include "settings/Settings.h"

namespace {

// Every item once, with the keys of all its values.
QList<Item> itemsOfSettings() {
    QList<Item> items;
    for (const Setting &setting : settings()) {
        if (setting.item.code == 0) continue;
        const bool isNew = items.isEmpty() || items.last().code != setting.item.code;
        if (isNew) items << setting.item;
        items.last().viewKey = setting.viewKey;
        items.last().keys << setting.key;
        items.last().isSecret |= setting.isSecret();
    }
    return items;
}

const QList<Item> &allItems() {
    static const QList<Item> items = itemsOfSettings();
    return items;
}

// The items that have a turn, in that order.
QList<Item> inTurn(int Item::*turn) {
    QList<Item> items;
    std::copy_if(allItems().begin(), allItems().end(), std::back_inserter(items),
                 [turn](const Item &item) { return item.*turn > 0; });
    std::sort(items.begin(), items.end(),
              [turn](const Item &a, const Item &b) { return a.*turn < b.*turn; });
    return items;
}

}  // namespace

const QList<Item> &readItems() {
    static const QList<Item> items = inTurn(&Item::readTurn);
    return items;
}

const QList<Item> &sentItems() {
    static const QList<Item> items = inTurn(&Item::sendTurn);
    return items;
}

const Item *itemOf(ItemCode code) {
    const auto found = std::find_if(allItems().begin(), allItems().end(),
                                    [code](const Item &item) { return item.code == code; });
    return found == allItems().end() ? nullptr : &*found;
}
