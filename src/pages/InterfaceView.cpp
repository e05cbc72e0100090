#include "pages/InterfaceView.h"

#include <algorithm>

#include "platform/core/Texts.h"
#include "platform/ui/FieldLooks.h"

using namespace Qt::StringLiterals;

void InterfaceView::addAddress(TextField *field, const QString &key, const QString &keyInUse,
                               bool *input, std::function<bool()> store) {
    m_keysInUse.insert(key, keyInUse);
    addField(field, key, input, std::move(store));
}

void InterfaceView::setControls(const Controls &controls) {
    m_controls = controls;
    m_untested = controls.state->text();
    controls.whyNot->keepLine();
    QObject::connect(controls.connect, &QAbstractButton::clicked, this,
                     &InterfaceView::connectRequested);
}

void InterfaceView::initializeUI() {
    DWTBaseView::initializeUI();
    for (const Field &field : fields())
        if (field.isAddress()) fitWidth(field.line(), u"255.255.255.255"_s);
}

void InterfaceView::showDataManager() {
    DWTBaseView::showDataManager();
    selectAddressSettingInput();
}

void InterfaceView::enableAllItems(bool enabled) {
    DWTBaseView::enableAllItems(enabled);
    if (enabled) selectAddressSettingInput();
}

bool InterfaceView::itemConnectChangeCheck() {
    const CategoryDictionary saved = savedCategory();
    return std::all_of(fields().begin(), fields().end(), [&](const Field &field) {
        return !field.isAddress() || !field.control->isEnabled() ||
               isEqualAddress(field.line()->text().split(u'.'), addressValue(saved, field.key()));
    });
}

bool InterfaceView::textShouldBeginEditing(TextField *control) {
    settingConnectButtonEnable(false);
    return DWTBaseView::textShouldBeginEditing(control);
}

void InterfaceView::controlTextDidChange(TextField *control) {
    if (fieldOf(control)) forgetConnectResult();
    DWTBaseView::controlTextDidChange(control);
}

void InterfaceView::settingConnectButtonEnable(bool enabled) {
    const QString why = enabled ? QString() : localized("DWT_Localize_Connect_Unsent");
    m_controls.connect->setEnabled(enabled);
    m_controls.connect->setToolTip(why);
    m_controls.whyNot->say(why, FieldNote::Kind::Rule);
}

void InterfaceView::showConnectResult(bool online) {
    m_controls.state->setText(localized(online ? m_controls.online : m_controls.offline));
}

void InterfaceView::chooseAddressSetup() {
    forgetConnectResult();
    // Before the rest, since a field that is disabled while it has the focus stores what was typed.
    selectAddressSettingInput();
    const CategoryDictionary saved = savedCategory();
    CategoryDictionary &settings = mutableDictionary_ViewSettings;
    settings.insert(fieldOf(m_controls.choice)->key(), m_controls.choice->selectedTag());
    for (const Field &field : fields()) {
        if (!field.isAddress()) continue;
        if (!isAutomatic())
            settings.insert(field.key(), field.line()->text().split(u'.'));
        else if (saved.contains(field.key()))
            settings.insert(field.key(), saved.value(field.key()));
        else
            settings.remove(field.key());
    }
    handOver(settings);
    sendNotificationSendOK();
}

void InterfaceView::selectAddressSettingInput() {
    for (const Field &field : fields())
        if (field.isAddress()) field.control->setEnabled(!isAutomatic());
}

// Automatic setup shows the addresses in use again.
void InterfaceView::putBack(const Field &field) {
    DWTBaseView::putBack(field);
    if (field.control != m_controls.choice) return;
    if (isAutomatic())
        for (const Field &address : fields())
            if (address.isAddress()) fill(address);
    chooseAddressSetup();
}

void InterfaceView::fill(const Field &field) {
    const CategoryDictionary &values = mutableDictionary_ViewSettings;
    if (field.control == m_controls.choice) {
        m_controls.choice->selectTag(integerValue(values, field.key()));
        return;
    }
    if (!field.isAddress()) return DWTBaseView::fill(field);
    const QString key = isAutomatic() ? m_keysInUse.value(field.key()) : field.key();
    field.line()->setText(addressNumberToString(addressValue(values, key)));
    if (field.input) *field.input = true;
}
