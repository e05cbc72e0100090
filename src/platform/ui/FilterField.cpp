#include "platform/ui/FilterField.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QShortcut>
#include <QToolButton>

#include "platform/core/Texts.h"
#include "platform/ui/TableView.h"

FilterField::FilterField(QWidget *parent) : QLineEdit(parent) {
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        setFocus(Qt::ShortcutFocusReason);
        selectAll();
    });
}

void FilterField::setTable(TableView *table) {
    m_table = table;
    connect(this, &QLineEdit::textChanged, table, &TableView::setFilter);
}

// Only then, since Qt looks through the icon themes for the picture of the button.
void FilterField::showEvent(QShowEvent *event) {
    setClearButtonEnabled(true);
    findChild<QToolButton *>()->setAccessibleName(localized("DWT_Localize_Field_Clear"));
    QLineEdit::showEvent(event);
}

void FilterField::keyPressEvent(QKeyEvent *event) {
    const int key = event->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
        m_table->setFocus();
        QCoreApplication::sendEvent(m_table, event);
    } else if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        m_table->openSelected();
    } else if (key == Qt::Key_Escape && !text().isEmpty()) {
        clear();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}
