#include "settings/Ending.h"

#include <algorithm>

#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

namespace {

// Of the addresses of an interface, the first stands for all, of a key and its number the key.
const Setting &representativeOf(const Setting &setting) {
    const Item *const item = itemOf(setting.item.code);
    if (!item) return setting;
    const bool isInterface = item->layout == Item::Layout::IntegerAndAddresses;
    return *settingOf(item->viewKey, isInterface ? item->keys[1] : item->keys.last());
}

QString nameOf(const Setting &setting, Naming naming) {
    if (naming == Naming::Stable) return setting.name;
    return u"%1: %2"_s.arg(titleOfPage(setting.viewKey), setting.label());
}

// Names for the end of a sentence: in the words of the windows, each on a line of its own.
QString listOf(const QList<const Setting *> &settings, Naming naming) {
    const QStringList names = namesOf(settings, naming);
    return naming == Naming::Stable ? names.join(u", "_s) : u'\n' + names.join(u'\n');
}

QString wordsOf(const Ending::Part &part) {
    const QString name = nameOf(*part.setting, Naming::Stable);
    if (part.setting->isSecret()) return localized("DWT_Localize_Ending_SecretDiffers").arg(name);
    return localized("DWT_Localize_Ending_Differs").arg(name, part.sentText, part.heldText);
}

// Of an ending in which nothing was written or applied; null for any other.
const char *keyOf(const Ending &ending) {
    using Course = Ending::Course;
    using Login = Ending::Login;
    static const QMap<Course, const char *> courses{
        {Course::NotReached, "DWT_Localize_Ending_NotReached"},
        {Course::Lost, "DWT_Localize_Ending_Lost"},
        {Course::Stopped, "DWT_Localize_Ending_Stopped"}};
    static const QMap<Login, const char *> logins{
        {Login::Missing, "DWT_Localize_Ending_NoPassword"},
        {Login::Refused, "DWT_Localize_Ending_LoginRefused"},
        {Login::NoReply, "DWT_Localize_Ending_NotReached"},
        {Login::NotReached, "DWT_Localize_Ending_NotReached"}};
    return courses.value(ending.course, logins.value(ending.login));
}

}  // namespace

bool Ending::isClean(const QString &key) const {
    const auto isTaken = [&](const Part &part) {
        return (!key.isEmpty() && part.setting->key != key) || part.state == State::Accepted ||
               part.state == State::Verified;
    };
    return isSent() && std::all_of(parts.begin(), parts.end(), isTaken);
}

QList<const Setting *> Ending::in(State state) const {
    QList<const Setting *> settings;
    for (const Part &part : parts)
        if (part.state == state) settings << part.setting;
    return settings;
}

QStringList namesOf(const QList<const Setting *> &settings, Naming naming) {
    QStringList names;
    for (const Setting *const setting : settings)
        names << nameOf(naming == Naming::Stable ? *setting : representativeOf(*setting), naming);
    names.removeDuplicates();
    return names;
}

QStringList wordsOf(const Ending &ending, const QString &printer, Naming naming) {
    if (const char *const key = keyOf(ending)) return {localized(key).arg(printer)};
    QStringList sentences;
    const auto say = [&](const char *key, const QList<const Setting *> &settings) {
        if (!settings.isEmpty()) sentences << localized(key).arg(printer, listOf(settings, naming));
    };
    if (naming == Naming::Stable) {
        say("DWT_Localize_Ending_Refused", ending.in(Ending::State::Refused));
        say("DWT_Localize_Ending_Unclear", ending.in(Ending::State::Unclear));
        for (const Ending::Part &part : ending.parts)
            if (part.state == Ending::State::Differs) sentences << wordsOf(part);
    } else if (!ending.isComplete()) {
        sentences << localized("DWT_Localize_Ending_NotAsSent").arg(printer);
    }
    if (ending.comparison == Ending::Comparison::Failed)
        sentences << localized("DWT_Localize_Ending_NotReadBack").arg(printer);
    if (ending.comparison != Ending::Comparison::Done) return sentences;
    const QList<const Setting *> unseen = ending.in(Ending::State::Accepted);
    if (sentences.isEmpty())
        sentences << localized(unseen.isEmpty() ? "DWT_Localize_Ending_Verified"
                                                : "DWT_Localize_Ending_PartlyVerified")
                         .arg(printer);
    say("DWT_Localize_Ending_NotComparable", unseen);
    return sentences;
}
