#include "platform/ui/RadioGroup.h"

#include <QEvent>
#include <QRadioButton>

namespace {

int tagOf(const QAbstractButton *cell) {
    bool known = false;
    const int tag = cell->property("tag").toInt(&known);
    return known ? tag : -1;
}

}  // namespace

RadioGroup::RadioGroup(QWidget *parent) : QWidget(parent) {
    connect(&m_cells, &QButtonGroup::buttonClicked, this,
            [this](const QAbstractButton *cell) { Q_EMIT selected(tagOf(cell)); });
}

int RadioGroup::selectedTag() const {
    const auto cells = findChildren<QRadioButton *>();
    for (const QRadioButton *cell : cells) {
        if (cell->isChecked()) return tagOf(cell);
    }
    return -1;
}

bool RadioGroup::selectTag(int tag) {
    adoptCells();
    const auto cells = m_cells.buttons();
    for (QAbstractButton *cell : cells) {
        if (cell->property("tag").isValid() && tagOf(cell) == tag) {
            cell->setChecked(true);
            return true;
        }
    }
    deselectAll();
    return false;
}

bool RadioGroup::event(QEvent *event) {
    // A cell is complete some time after it was added: when it is polished, at the latest when the
    // group is shown.
    if (event->type() == QEvent::ChildPolished || event->type() == QEvent::Show) adoptCells();
    return QWidget::event(event);
}

void RadioGroup::adoptCells() {
    const auto cells = findChildren<QRadioButton *>();
    for (QRadioButton *cell : cells) {
        if (cell->group() != &m_cells) m_cells.addButton(cell);
    }
}

void RadioGroup::deselectAll() {
    QAbstractButton *cell = m_cells.checkedButton();
    if (!cell) return;
    m_cells.setExclusive(false);  // an exclusive group keeps one selected
    cell->setChecked(false);
    m_cells.setExclusive(true);
}
