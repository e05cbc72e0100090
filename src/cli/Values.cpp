#include "cli/Values.h"

#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

namespace {

using Kind = Setting::Kind;

const QString unset = u"0.0.0.0"_s;

// Whether the value is there and was told.
bool isThere(const Setting &setting, const CategoryDictionary &category) {
    const auto value = category.constFind(setting.key);
    if (value == category.constEnd()) return false;
    const auto *text = std::get_if<QString>(&*value);
    return !text || *text != unreadable;
}

// Of four numbers, without leading zeros; empty for anything else.
QString dotted(const QStringList &address) {
    if (address.size() != 4) return {};
    QStringList numbers;
    for (const QString &part : address) numbers << QString::number(integerOf(part));
    return numbers.join(u'.');
}

GivenValue given(const Setting &setting, const SettingValue &value, const Fault &place,
                 const QString &brokenRule = {}) {
    GivenValue result{&setting, value, place};
    result.place.text = brokenRule;
    return result;
}

// Of a text or an address.
bool keepsRule(const Rules::Rule &rule, const QString &text) {
    switch (rule.kind) {
        case Rules::Rule::Kind::Address:
            return Rules::isAddress(text, rule.loopback);
        case Rules::Rule::Kind::WEPKey:
            return Rules::isWEPKey(text, true);
        default:
            return Rules::isText(text, rule.characters, rule.min, rule.max, true);
    }
}

}  // namespace

QString wordsOfExpected(const Setting &setting) {
    if (setting.kind == Kind::Number)
        return localized(u"DWT_Localize_Cli_Fault_Number"_s)
            .arg(QString::number(setting.min), QString::number(setting.max));
    if (setting.kind == Kind::Choice)
        return localized(u"DWT_Localize_Cli_Fault_Choice"_s).arg(setting.codes.join(u", "_s));
    return localized(setting.isSecret() ? u"DWT_Localize_Cli_Fault_Secret"_s
                                        : u"DWT_Localize_Cli_Fault_Text"_s);
}

std::optional<GivenValue> valueFromText(const Setting &setting, const QString &text, Fault &fault) {
    if (setting.kind == Kind::Choice) {
        const qsizetype code = setting.codes.indexOf(text);
        if (code >= 0) return given(setting, static_cast<int>(code), fault);
        fault.text = wordsOfExpected(setting);
        return {};
    }
    if (setting.kind == Kind::Number) {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        if (isNumber) return valueFromNumber(setting, number, fault);
        fault.text = wordsOfExpected(setting);
        return {};
    }
    const QString broken = keepsRule(*setting.rule, text)
                               ? QString()
                               : localized(QLatin1String(setting.rule->ruleKey));
    if (setting.kind == Kind::Text) return given(setting, text, fault, broken);
    const QStringList address = text.split(u'.');
    // What is no address at all cannot be the printer's either.
    if (broken.isEmpty() || dotted(address) == text)
        return given(setting, dotted(address).split(u'.'), fault, broken);
    fault.text = broken;
    return {};
}

std::optional<GivenValue> valueFromNumber(const Setting &setting, qint64 number, Fault &fault) {
    const int value = static_cast<int>(number);
    const QString expected = wordsOfExpected(setting);
    if (setting.kind == Kind::Number && value == number)
        return given(setting, value, fault,
                     value < setting.min || value > setting.max ? expected : QString());
    // A code that has no name.
    if (setting.kind == Kind::Choice && value == number && value >= setting.codes.size())
        return given(setting, value, fault, expected);
    fault.text = expected;
    return {};
}

QJsonValue valueAsJson(const Setting &setting, const CategoryDictionary &category) {
    if (!isThere(setting, category)) return QJsonValue::Null;
    const int code = integerValue(category, setting.key);
    switch (setting.kind) {
        case Kind::Number:
            return code;
        case Kind::Choice:
            if (code >= 0 && code < setting.codes.size()) return setting.codes[code];
            return code;
        case Kind::Address:
        case Kind::Mac: {
            const QString text = valueForPeople(setting, category);
            return text.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
        }
        case Kind::Text:
            break;
    }
    return readableText(textValue(category, setting.key));
}

QString valueForPeople(const Setting &setting, const CategoryDictionary &category) {
    if (!isThere(setting, category)) return {};
    const int code = integerValue(category, setting.key);
    switch (setting.kind) {
        case Kind::Number:
            return QString::number(code);
        case Kind::Choice:
            if (code >= 0 && code < setting.codeTexts.size())
                return withoutMnemonic(localized(setting.codeTexts[code]));
            return QString::number(code);
        case Kind::Address: {
            const QString address = dotted(addressValue(category, setting.key));
            return address == unset ? QString() : address;
        }
        case Kind::Mac:
            return macText(textValue(category, setting.key));
        case Kind::Text:
            break;
    }
    return readableText(textValue(category, setting.key));
}

QString valueOrEmpty(const Setting &setting, const CategoryDictionary &category) {
    const QString text = valueForPeople(setting, category);
    return text.isEmpty() ? localized(u"DWT_Localize_Send_Confirm_Empty"_s) : text;
}
