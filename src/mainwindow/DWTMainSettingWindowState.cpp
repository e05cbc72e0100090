// What the window says of its printer, above the pages.

#include "mainwindow/DWTMainSettingWindow.h"
#include "mainwindow/WPSGuideWindow.h"
#include "platform/core/Texts.h"
#include "settings/PrinterWords.h"

using namespace Qt::StringLiterals;

namespace {

const QString separator = u" · "_s;

// "Wired network: 10.0.0.5", of the address that each interface uses, the wireless one in the mode
// that it works in. One that the printer did not report is left out.
QString addressesOf(const SettingRecord &record, bool isComplete) {
    QStringList lines;
    const auto add = [&](const QString &page, const QString &setting) {
        const Setting &address = *settingOf(setting);
        const QString used = textOf(address, record.value(address.viewKey));
        if (used.isEmpty() && !isComplete) return;
        lines << localized("DWT_Localize_State_Address")
                     .arg(titleOfPage(page),
                          used.isEmpty() ? localized("DWT_Localize_State_NoAddress") : used);
    };
    add(DWT_View_Key_Ethernet, u"wired.inUse.ip"_s);
    const int mode =
        integerValue(record.value(DWT_View_Key_Wireless), DWT_SaveData_Wireless_CommunicateMode);
    if (mode == CommunicationMode::Infrastructure)
        add(DWT_View_Key_Wireless, u"wireless.inUse.ip"_s);
    if (mode == CommunicationMode::AccessPoint)
        add(DWT_View_Key_Wireless, u"accessPoint.address.ip"_s);
    return lines.join(separator);
}

}  // namespace

void DWTMainSettingWindow::showState(bool isComplete) {
    const PrinterEntry &entry = m_session->entry();
    const bool overUSB = isUSB(entry);
    const QString picture = overUSB ? u":/pictures/usb.svg"_s : u":/pictures/network.svg"_s;
    const int side = window_Main->style()->pixelMetric(QStyle::PM_LargeIconSize);
    icon_State->setPixmap(QIcon(picture).pixmap(QSize(side, side)));
    QStringList connection{localized(overUSB ? "DWT_Localize_PrinterList_BonjourService_USB"
                                             : "DWT_Localize_PrinterList_BonjourService_Network")};
    if (const QString whereabouts = whereaboutsOf(entry); !whereabouts.isEmpty())
        connection << shownText(whereabouts);
    connection << localized("DWT_Localize_State_ReadAt").arg(readAt());
    textField_StateConnection->setText(connection.join(separator));
    textField_StateAddresses->setText(addressesOf(dataManager_Object->savedData(), isComplete));
}

QString DWTMainSettingWindow::readAt() const {
    return QLocale().toString(m_readAt, QLocale::ShortFormat);
}

void DWTMainSettingWindow::showReadState() {
    QStringList lines;
    if (m_cancelled)
        lines << localized("DWT_Localize_MainDialog_Text_ReadOnly_Cancelled");
    else if (!bool_GetDataSuccess)
        lines << localized(bool_usbPrinter ? "DWT_Localize_MainDialog_Text_ReadOnly_NotRead"
                                           : "DWT_Localize_MainDialog_Text_ReadOnly_Network");
    if (m_showsOldValues) lines << localized("DWT_Localize_State_AsRead").arg(readAt());
    const auto missing = dataManager_Object && !m_showsOldValues ? dataManager_Object->notReported()
                                                                 : QList<const Setting *>();
    if (!missing.isEmpty())
        lines << localized("DWT_Localize_MainDialog_Text_NotReported")
                     .arg(namesOf(missing, Naming::Labels).join(u"; "_s));
    textField_ReadOnly->setText(lines.join(u'\n'));
    textField_ReadOnly->setVisible(!lines.isEmpty());
}

void DWTMainSettingWindow::showOwnName() {
    const SettingRecord saved =
        dataManager_Object ? dataManager_Object->savedData() : SettingRecord();
    const QString own =
        readableText(textValue(saved.value(DWT_View_Key_Network), DWT_SaveData_Network_Printer));
    textField_PrinterOwnName->setText(own.isEmpty() ? QString() : u"· %1"_s.arg(own));
    if (!m_session) return;
    const auto entitle = [name = m_session->name()](QWidget *window, const char *key) {
        const QString title = key ? localized(key).arg(name) : name;
        window->setWindowTitle(localized("DWT_Localize_App_Title").arg(title));
    };
    entitle(window_Main, nullptr);
    entitle(window_SelectSSID, "DWT_Localize_Title_Networks");
    entitle(window_WPSGuide, "DWT_Localize_Title_WPS");
}
