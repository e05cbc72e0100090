#include "platform/ui/Alert.h"

#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

void Alert::runModal(QWidget *parent) const {
    // On the heap: it goes with its parent when that is destroyed while the alert is up.
    const QPointer<QMessageBox> box = new QMessageBox(parent);
    box->setIcon(m_style == Style::Critical ? QMessageBox::Critical : QMessageBox::Warning);
    box->setWindowTitle(QGuiApplication::applicationDisplayName());
    box->setText(m_messageText);
    box->setInformativeText(m_informativeText);
    // QMessageBox::setTextFormat() leaves the informative text's label out.
    const auto labels = box->findChildren<QLabel *>();
    for (QLabel *label : labels) label->setTextFormat(Qt::PlainText);
    QPushButton *button = box->addButton(m_buttonTitle, QMessageBox::AcceptRole);
    box->setDefaultButton(button);
    box->setEscapeButton(button);
    box->exec();
    delete box;
}
