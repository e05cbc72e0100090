#include "pages/Field.h"

#include <QCheckBox>
#include <QComboBox>

#include "platform/core/Texts.h"
#include "platform/ui/RadioGroup.h"
#include "settings/Values.h"

using namespace Qt::StringLiterals;

QString shownAddress(const QStringList &address) {
    const QString dotted = dottedAddress(address);
    return dotted.isEmpty() ? u"0.0.0.0"_s : dotted;
}

void Field::show(const CategoryDictionary &category) const {
    const bool isMissing = !category.contains(key());
    if (input) *input = !isMissing;
    const int code = integerValue(category, key());
    if (auto *group = qobject_cast<RadioGroup *>(control)) {
        if (!isMissing) group->selectTag(code);
    } else if (auto *popup = qobject_cast<QComboBox *>(control)) {
        popup->setCurrentIndex(popup->findData(isMissing ? QVariant() : QVariant(code)));
    } else if (isMissing && edited) {
        line()->clear();
    } else if (!isMissing || isAddress() || setting->kind == Setting::Kind::Choice) {
        line()->setText(textOf(category));
    }
}

void Field::showText(const QString &text) const {
    line()->setText(text);
    if (input) *input = !text.isEmpty();
}

std::optional<SettingValue> Field::value() const {
    if (const auto *box = qobject_cast<QCheckBox *>(control)) return box->isChecked() ? 1 : 0;
    if (const auto *group = qobject_cast<RadioGroup *>(control)) {
        const int tag = group->selectedTag();
        return tag < 0 ? std::nullopt : std::optional<SettingValue>(tag);
    }
    if (const auto *popup = qobject_cast<QComboBox *>(control)) {
        const QVariant code = popup->currentData();
        return code.isValid() ? std::optional<SettingValue>(code.toInt()) : std::nullopt;
    }
    const QString shown = line()->text();
    if (isAddress()) return shown.split(u'.');
    if (isNumber()) return integerOf(shown);
    return shown;
}

bool Field::isEmpty() const {
    if (const auto *group = qobject_cast<RadioGroup *>(control)) return group->selectedTag() <= 0;
    if (const auto *popup = qobject_cast<QComboBox *>(control)) return popup->currentIndex() <= 0;
    return line() && (line()->text().isEmpty() || line()->text() == shownAddress({}));
}

QString Field::textOf(const CategoryDictionary &category) const {
    if (isAddress()) return shownAddress(addressValue(category, key()));
    if (setting->kind == Setting::Kind::Choice)
        return localized(setting->codeTexts.value(integerValue(category, key())));
    if (setting->kind == Setting::Kind::Number)
        return QString::number(integerValue(category, key()));
    return readableText(textValue(category, key()));
}
