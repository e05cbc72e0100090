#include "cli/Outcome.h"

#include <QJsonArray>

#include "cli/Faults.h"
#include "cli/Views.h"
#include "platform/core/Texts.h"
#include "settings/SettingsFile.h"

using namespace Qt::StringLiterals;

namespace {

QString wordOf(SendWarning::Kind kind) {
    static const QMap<SendWarning::Kind, QString> words{
        {SendWarning::KeyKept, u"key-kept"_s},
        {SendWarning::NotAMask, u"not-a-mask"_s},
        {SendWarning::GatewayOutside, u"gateway-outside"_s},
        {SendWarning::AddressUnreachable, u"address-unreachable"_s}};
    return words[kind];
}

QString fileTextOf(const Setting &setting, const CategoryDictionary &category) {
    return category.contains(setting.key) ? fileTextOf(asJson(setting, category))
                                          : localized("DWT_Localize_Cli_NotReportedValue");
}

QJsonArray namesIn(const Ending &ending, Ending::State state) {
    return QJsonArray::fromStringList(namesOf(ending.in(state), Naming::Stable));
}

QJsonObject asJson(const Plan::Change &change, const Outcome &outcome) {
    const Setting &setting = *change.setting;
    const CategoryDictionary before = outcome.before.value(setting.viewKey),
                             after = outcome.plan.record.value(setting.viewKey);
    if (setting.isSecret())
        return {{u"name"_s, setting.name}, {u"new"_s, !textValue(after, setting.key).isEmpty()}};
    return {{u"name"_s, setting.name},
            {u"old"_s, asJson(setting, before)},
            {u"new"_s, asJson(setting, after)}};
}

}  // namespace

Outcome outcomeOf(ExitCode code, const QStringList &sentences) {
    return {code, wordOf(code), sentences};
}

Outcome outcomeOf(const QList<Fault> &faults) {
    Outcome outcome = outcomeOf(ExitCode::InputRefused, {});
    for (const Fault &fault : faults) outcome.sentences << wordsOf(fault);
    outcome.faults = faults;
    return outcome;
}

Outcome::Warning warningOf(const SendWarning &warning) {
    return {wordOf(warning.kind), wordsOf(warning)};
}

QString fileTextOf(const QJsonValue &value) {
    const QString text = shownText(value.toVariant().toString());
    return text.isEmpty() ? localized("DWT_Localize_Send_Confirm_Empty") : text;
}

QString lineOf(const Plan::Change &change, const Outcome &outcome) {
    const Setting &setting = *change.setting;
    const QString file = outcome.secretFiles.value(setting.name);
    if (setting.isSecret() && !file.isEmpty())
        return u"%1: %2"_s.arg(
            setting.name,
            localized("DWT_Localize_Cli_FromFile").arg(change.newText, shownText(file)));
    if (setting.isSecret()) return u"%1: %2"_s.arg(setting.name, change.newText);
    return u"%1: %2 → %3"_s.arg(setting.name,
                                fileTextOf(setting, outcome.before.value(setting.viewKey)),
                                fileTextOf(setting, outcome.plan.record.value(setting.viewKey)));
}

QStringList wordsOfLeftOut(const Plan &plan) {
    const std::pair<Plan::LeftOut::Reason, const char *> reasons[] = {
        {Plan::LeftOut::Automatic, "DWT_Localize_Cli_LeftOut_Automatic"},
        {Plan::LeftOut::SameNetwork, "DWT_Localize_Cli_LeftOut_SameNetwork"}};
    QStringList sentences;
    for (const auto &[reason, key] : reasons) {
        QStringList names;
        for (const Plan::LeftOut &left : plan.leftOut)
            if (left.reason == reason) names << left.setting->name;
        if (!names.isEmpty()) sentences << localized(key).arg(names.join(u", "_s));
    }
    return sentences;
}

QJsonObject asJson(const Outcome &outcome) {
    QJsonArray changes, leftOut, warnings, faults;
    for (const Plan::Change &change : outcome.plan.changes) changes << asJson(change, outcome);
    for (const Plan::LeftOut &left : outcome.plan.leftOut)
        leftOut << QJsonObject{
            {u"name"_s, left.setting->name},
            {u"reason"_s,
             left.reason == Plan::LeftOut::Automatic ? u"automatic"_s : u"same-network"_s}};
    for (const Outcome::Warning &warning : outcome.warnings)
        warnings << QJsonObject{{u"warning"_s, warning.kind}, {u"message"_s, warning.text}};
    for (const Fault &fault : outcome.faults) faults << asJson(fault);
    QJsonObject object{{u"outcome"_s, outcome.word},
                       {u"message"_s, outcome.sentences.join(u' ')},
                       {u"changes"_s, changes},
                       {u"leftOut"_s, leftOut},
                       {u"warnings"_s, warnings},
                       {u"faults"_s, faults},
                       {u"notReported"_s,
                        QJsonArray::fromStringList(namesOf(outcome.notReported, Naming::Stable))}};
    if (!outcome.ending) return object;
    using State = Ending::State;
    object.insert(u"verified"_s, namesIn(*outcome.ending, State::Verified));
    object.insert(u"notCompared"_s, namesIn(*outcome.ending, State::Accepted));
    object.insert(u"notAccepted"_s, namesIn(*outcome.ending, State::Refused));
    object.insert(u"unclear"_s, namesIn(*outcome.ending, State::Unclear));
    object.insert(u"different"_s, namesIn(*outcome.ending, State::Differs));
    return object;
}

QJsonObject printerAsJson(const Session &session) {
    const SettingRecord &record = session.record();
    if (!record.contains(QString())) return asJson(session.entry());
    return asJson(SettingRecord{{QString(), record.value(QString())}})[u"printer"].toObject();
}
