#include "platform/ui/RadioGroup.h"

#include <QEvent>

#include "platform/core/Texts.h"

int RadioGroup::selectedTag() const {
    for (const QRadioButton *cell : cells())
        if (cell->isChecked()) return cell->property("tag").toInt();
    return -1;
}

bool RadioGroup::selectTag(int tag) {
    bool found = false;
    for (QRadioButton *cell : cells()) {
        const bool wanted = cell->property("tag") == QVariant(tag);
        cell->setAutoExclusive(false);  // an exclusive cell cannot be deselected
        cell->setChecked(wanted);
        cell->setAutoExclusive(true);
        found = found || wanted;
    }
    return found;
}

QString RadioGroup::titleOf(int tag) const {
    for (const QRadioButton *cell : cells())
        if (cell->property("tag") == QVariant(tag)) return withoutMnemonic(cell->text());
    return {};
}

// Cells are added after the group has been made; before the user can reach one, the group is shown.
bool RadioGroup::event(QEvent *event) {
    if (event->type() == QEvent::Polish || event->type() == QEvent::ChildPolished)
        for (QRadioButton *cell : cells())
            connect(cell, &QRadioButton::clicked, this, &RadioGroup::cellClicked,
                    Qt::UniqueConnection);
    return QWidget::event(event);
}
