#include "pages/DWTBaseView.h"

#include <algorithm>

#include "pages/TextFilter.h"
#include "platform/core/Texts.h"

namespace {

constexpr qsizetype longestAddress = 15;  // "255.255.255.255"
constexpr qsizetype parts = 4;

}  // namespace

DWTBaseView::~DWTBaseView() {
    TBV_Dealloc();
}

bool DWTBaseView::init() {
    return DWTBaseClass::init() && TBV_Init();
}

QWidget *DWTBaseView::mainCustomView() const {
    return view_Base;
}

void DWTBaseView::dataManagerObject(const std::shared_ptr<DWTDataManager> &manager) {
    ndm_Object = manager;
}

void DWTBaseView::SetViewKey(const QString &key) {
    string_ViewKey = key;
}

QString DWTBaseView::viewKey() const {
    return string_ViewKey;
}

bool DWTBaseView::itemInputCheckString(const QLineEdit *field, const QString &characterSet, int min,
                                       int max, bool input) const {
    const QString text = field->text();
    if (text.size() > max || (input && text.size() < min)) return false;
    return std::all_of(text.begin(), text.end(), [&](QChar c) { return characterSet.contains(c); });
}

bool DWTBaseView::itemInputCheckAddress(const QLineEdit *field, bool localhostCheck) const {
    const QString text = field->text();
    const QStringList texts = text.split(u'.');
    if (text.size() > longestAddress || texts.size() != parts || texts.contains(QString()))
        return false;
    QList<int> address;
    for (const QString &part : texts) address << integerOf(part);
    const auto inRange = [](int part) { return part >= 0 && part <= 255; };
    if (!std::all_of(address.begin(), address.end(), inRange)) return false;
    const QList<int> nowhere{0, 0, 0, 0}, everywhere{255, 255, 255, 255}, localhost{127, 0, 0, 1};
    if (address == nowhere || address == everywhere) return false;
    return !localhostCheck || address != localhost;
}

bool DWTBaseView::isEqualAddress(const QStringList &address,
                                 const QStringList &printerAddress) const {
    if (address.size() < parts || printerAddress.size() < parts) return false;
    return std::equal(
        address.begin(), address.begin() + parts, printerAddress.begin(),
        [](const QString &a, const QString &b) { return integerOf(a) == integerOf(b); });
}

void DWTBaseView::checkIPtextField(TextField *field) const {
    filterText(field, addressCharacters);
}

void DWTBaseView::sendNotificationSendOK() {
    postSendState(ndm_Object && ndm_Object->isEqualToSaveData());
}

CategoryDictionary DWTBaseView::savedCategory() const {
    if (!ndm_Object) return {};
    return ndm_Object->setupDataToMainView(string_ViewKey).value_or(CategoryDictionary());
}

void DWTBaseView::handOver(const CategoryDictionary &category) {
    if (ndm_Object) ndm_Object->setupDataFromMainView(category, string_ViewKey);
}

void DWTBaseView::postSendState(bool unchanged) {
    NotificationCenter::shared().post(
        unchanged ? DWT_MainDialog_SendNG_Message : DWT_MainDialog_SendOK_Message, this);
}

// The page is its fields' delegate as well, which tells it of the same change first.
NotificationCenter::Observer DWTBaseView::observeTextChanges() {
    return NotificationCenter::shared().observe(
        QStringLiteral("NSControlTextDidChangeNotification"), [this](const Notification &change) {
            auto *sender = const_cast<QObject *>(change.sender);
            if (auto *field = qobject_cast<TextField *>(sender)) controlTextDidChange(field);
        });
}

void DWTBaseView::showInputError(Alert &alert, const QString &fieldName,
                                 const QString &rule) const {
    const QString problem = localized(QStringLiteral("DWT_Localize_Alert_MessageText_Error"));
    alert.setButtonTitle(localized(QStringLiteral("DWT_Localize_Alert_Button_OK")));
    alert.setMessageText(QStringLiteral("%1 %2").arg(fieldName, problem));
    alert.setInformativeText(rule);
    alert.runModal(view_Base);
}

bool DWTBaseView::checkField(const CheckedField &checked, Alert &alert) const {
    if (!checked.field->isEnabled()) return true;
    if (itemInputCheckString(checked.field, checked.characters, checked.min, checked.max,
                             *checked.input))
        return true;
    showInputError(alert, localized(checked.messageKey), localized(checked.informationKey));
    return false;
}

bool DWTBaseView::TBV_Init() {
    nsObjectRelease(ndm_Object);
    string_ViewKey.clear();
    return true;
}

void DWTBaseView::TBV_Dealloc() {
    nsObjectRelease(ndm_Object);
    if (view_Base && !view_Base->parent()) delete view_Base;
}
