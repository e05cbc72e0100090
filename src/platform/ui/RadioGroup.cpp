#include "platform/ui/RadioGroup.h"

#include <QEvent>

int RadioGroup::selectedTag() const {
    for (const QRadioButton *cell : cells())
        if (cell->isChecked()) return cell->property("tag").toInt();
    return -1;
}

void RadioGroup::selectTag(int tag) {
    for (QRadioButton *cell : cells()) {
        cell->setAutoExclusive(false);  // an exclusive cell cannot be deselected
        cell->setChecked(cell->property("tag") == QVariant(tag));
        cell->setAutoExclusive(true);
    }
}

// Cells are added after the group has been made; before the user can reach one, the group is shown.
bool RadioGroup::event(QEvent *event) {
    if (event->type() == QEvent::Polish || event->type() == QEvent::ChildPolished)
        for (QRadioButton *cell : cells())
            connect(cell, &QRadioButton::clicked, this, &RadioGroup::cellClicked,
                    Qt::UniqueConnection);
    return QWidget::event(event);
}
