#include "settings/Values.h"

#include "platform/core/Nearest.h"
#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

namespace {

using Kind = Setting::Kind;

const QString unset = u"0.0.0.0"_s;

// What other tools call values.
const QMap<QString, QString> otherNames{{u"static"_s, u"fixed"_s},
                                        {u"dhcp"_s, u"automatic"_s},
                                        {u"wpa-psk"_s, u"wpa"_s},
                                        {u"wpa2-psk"_s, u"wpa2"_s}};

QString textOrMissing(const Setting &setting, const CategoryDictionary &category) {
    return category.contains(setting.key) ? textOrEmpty(setting, category)
                                          : localized("DWT_Localize_Cli_NotReportedValue");
}

}  // namespace

QString dottedAddress(const QStringList &address) {
    if (address.size() != 4) return {};
    QStringList numbers;
    for (const QString &part : address) numbers << QString::number(integerOf(part));
    return numbers.join(u'.');
}

QString wordsOfExpected(const Setting &setting) {
    if (setting.kind == Kind::Number)
        return localized("DWT_Localize_Cli_Fault_Number")
            .arg(QString::number(setting.rule->min), QString::number(setting.rule->max));
    if (setting.kind == Kind::Choice)
        return localized("DWT_Localize_Cli_Fault_Choice").arg(setting.codes.join(u", "_s));
    return localized(setting.isSecret() ? u"DWT_Localize_Cli_Fault_Secret"_s
                                        : u"DWT_Localize_Cli_Fault_Text"_s);
}

QString wordsOfUnknown(const QString &name) {
    QStringList known, ofGroup;
    const QString group = name.section(u'.', 0, 0) + u'.';
    for (const Setting &setting : settings()) {
        if (setting.name.isEmpty() || setting.access() == Setting::Access::Read) continue;
        known << setting.name << setting.name.section(u'.', 0, 0);
        if (setting.name.startsWith(group)) ofGroup << setting.name;
    }
    const QString words = localized("DWT_Localize_Cli_Fault_Unknown") + u' ';
    known.removeDuplicates();
    const QString nearest = nearestOf(name, known);
    if (!nearest.isEmpty()) return words + localized("DWT_Localize_Cli_Meant").arg(nearest);
    const QString names = ofGroup.join(u", "_s);
    return (ofGroup.isEmpty() ? words : words + localized("DWT_Localize_Cli_OfGroup").arg(names))
        .trimmed();
}

Parsed parsedText(const Setting &setting, const QString &text) {
    if (setting.kind == Kind::Choice) {
        const qsizetype code = setting.codes.indexOf(otherNames.value(text, text));
        if (code >= 0) return {static_cast<int>(code), {}};
        return {{}, wordsOfExpected(setting)};
    }
    if (setting.kind == Kind::Number) {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        if (isNumber) return parsedNumber(setting, number);
        return {{}, wordsOfExpected(setting)};
    }
    const QString fault =
        Rules::keeps(*setting.rule, text) ? QString() : localized(setting.rule->ruleKey);
    if (setting.kind == Kind::Text) return {text, fault};
    const QString address = dottedAddress(text.split(u'.'));
    // What is no address at all cannot be the printer's either.
    if (!fault.isEmpty() && address != text) return {{}, fault};
    return {address.split(u'.'), fault};
}

Parsed parsedNumber(const Setting &setting, qint64 number) {
    const int value = static_cast<int>(number);
    const QString expected = wordsOfExpected(setting);
    if (setting.kind == Kind::Number && value == number) {
        const bool isInRange = value >= setting.rule->min && value <= setting.rule->max;
        return {value, isInRange ? QString() : expected};
    }
    // A code that has no name.
    if (setting.kind == Kind::Choice && value == number && value >= setting.codes.size())
        return {value, expected};
    return {{}, expected};
}

QString textOf(const Setting &setting, const CategoryDictionary &category) {
    if (!category.contains(setting.key)) return {};
    const int code = integerValue(category, setting.key);
    switch (setting.kind) {
        case Kind::Number:
            return QString::number(code);
        case Kind::Choice:
            if (code >= 0 && code < setting.codeTexts.size())
                return withoutMnemonic(localized(setting.codeTexts[code]));
            return QString::number(code);
        case Kind::Address: {
            const QString address = dottedAddress(addressValue(category, setting.key));
            return address == unset ? QString() : address;
        }
        case Kind::Mac:
        case Kind::Text:
            break;
    }
    const QString text = readableText(textValue(category, setting.key));
    return setting.kind == Kind::Mac ? macText(text) : text;
}

QString textOrEmpty(const Setting &setting, const CategoryDictionary &category) {
    const QString text = textOf(setting, category);
    return text.isEmpty() ? localized("DWT_Localize_Send_Confirm_Empty") : text;
}

QList<ShownPage> shownPages(const SettingRecord &record) {
    QList<ShownPage> pages;
    for (const SettingPage &page : settingPages()) {
        ShownPage shown{titleOfPage(page.viewKey), {}};
        for (const Setting &setting : settings())
            if (setting.viewKey == page.viewKey && setting.access() != Setting::Access::Enter)
                shown.lines << std::pair(setting.label(),
                                         textOrMissing(setting, record.value(page.viewKey)));
        if (!shown.lines.isEmpty()) pages << shown;
    }
    return pages;
}
