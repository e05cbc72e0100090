#include "platform/ui/Alert.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

void Alert::runModal(QWidget *parent) const {
    QMessageBox box(parent ? parent : QApplication::activeWindow());
    box.setIcon(m_style == Style::Critical ? QMessageBox::Critical : QMessageBox::Warning);
    box.setTextFormat(Qt::PlainText);
    box.setText(m_messageText);
    box.setInformativeText(m_informativeText);
    QPushButton *const button = box.addButton(m_buttonTitle, QMessageBox::AcceptRole);
    box.setDefaultButton(button);
    box.setEscapeButton(button);
    box.exec();
}
