#include "mainwindow/WPSTexts.h"

#include <QIcon>

#include "platform/core/Texts.h"

namespace {

constexpr QSize pictureSize(320, 160);

}  // namespace

void setWPSTexts(const Ui::WPSViews &views) {
    const auto text = [](const char *key) { return localized(QLatin1String(key)); };
    views.textField_WPS1->setText(text("DWT_Localize_WPS1_TextField"));
    views.textField_WPS1a1->setText(text("DWT_Localize_WPS1_TextField_a1"));
    views.textField_WPS1a->setText(text("DWT_Localize_WPS1_TextField_a"));
    views.textField_WPS1b2->setText(text("DWT_Localize_WPS1_TextField_b2"));
    views.textField_WPS1b->setText(text("DWT_Localize_WPS1_TextField_b"));
    views.textField_WPS1c->setText(text("DWT_Localize_WPS1_TextField_c"));
    views.button_WPS1Next->setText(text("DWT_Localize_WPS1_Button_Next_Key"));
    views.button_WPS1Back->setText(text("DWT_Localize_WPS1_Button_Back_Key"));
    views.button_WPS1EXIT->setText(text("DWT_Localize_WPS1_Button_Exit_Key"));
    views.textField_WPS2->setText(text("DWT_Localize_WPS2_TextField"));
    views.button_WPS2Next->setText(text("DWT_Localize_WPS2_Button_Next_Key"));
    views.button_WPS2Back->setText(text("DWT_Localize_WPS2_Button_Back_Key"));
    views.button_WPS2EXIT->setText(text("DWT_Localize_WPS2_Button_Exit_Key"));
    views.imageView_WPS2->setMinimumSize(pictureSize);
}

void setWPSPicture(const Ui::WPSViews &views) {
    const QIcon picture(QStringLiteral(":/pictures/wps.svg"));
    views.imageView_WPS2->setPixmap(picture.pixmap(pictureSize));
}
