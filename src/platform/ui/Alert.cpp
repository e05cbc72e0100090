#include "platform/ui/Alert.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "platform/core/Texts.h"
#include "platform/ui/WaitSheet.h"

bool Alert::runModal(Style style, const QString &message, const QString &information,
                     QWidget *parent, Answers answers) {
    QWidget *const waited = WaitSheet::endCurrent();
    QWidget *const active = waited ? waited : QApplication::activeWindow();
    // It goes with its parent, which may happen while it is up.
    QWidget *const over = parent ? parent : active;
    const QPointer<QMessageBox> shown(new QMessageBox(over));
    QMessageBox &box = *shown;
    box.setWindowTitle(over ? over->window()->windowTitle()
                            : QGuiApplication::applicationDisplayName());
    box.setIcon(style == Style::Critical ? QMessageBox::Critical : QMessageBox::Warning);
    box.setText(message);
    box.setInformativeText(information);
    for (QLabel *label : box.findChildren<QLabel *>()) label->setTextFormat(Qt::PlainText);
    QPushButton *const button =
        box.addButton(localized("DWT_Localize_Alert_Button_OK"), QMessageBox::AcceptRole);
    box.setDefaultButton(button);
    const QPushButton *const cancel =
        answers == Answers::OkOrCancel
            ? box.addButton(localized("DWT_Localize_Alert_Button_Cancel"), QMessageBox::RejectRole)
            : nullptr;
    if (!cancel) box.setEscapeButton(button);
    box.setEnabled(true);  // its parent may be inert
    box.exec();
    const bool isCancelled = shown && cancel && box.clickedButton() == cancel;
    delete shown;
    return !isCancelled;
}
