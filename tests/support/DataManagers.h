#pragma once

#include "link/Binding.h"
#include "platform/core/MainThread.h"
#include "settings/DWTDataManager.h"
#include "settings/Plan.h"
#include "support/Catalogues.h"

inline QStringList address(const QString &dotted) {
    return dotted.split(u'.');
}

// Values as somebody gives them: "names.bonjour=desk|.service=Desk|wireless.mode=2". A name that
// begins with a dot is of the group of the name before; a code may be a number.
inline QList<WantedValue> valuesOf(const char *written) {
    QList<WantedValue> values;
    for (const QString &part : QString::fromUtf8(written).split(u'|')) {
        QString name = part.section(u'=', 0, 0);
        if (name.startsWith(u'.')) name = values.last().setting->name.section(u'.', 0, -2) + name;
        const Setting *const setting = settingOf(name);
        const QString text = part.section(u'=', 1);
        Parsed parsed{text, {}};
        if (setting->kind == Setting::Kind::Choice && text[0].isDigit())
            parsed.value = text.toInt();
        else if (setting->access() != Setting::Access::Read)
            parsed = parsedText(*setting, text);
        else if (setting->kind == Setting::Kind::Address)
            parsed.value = address(text);
        values << WantedValue{setting, *parsed.value, {.name = name}, parsed.fault};
    }
    return values;
}

inline SettingRecord recordOf(const char *written) {
    SettingRecord record;
    for (const WantedValue &value : valuesOf(written))
        record[value.setting->viewKey].insert(value.setting->key, value.value);
    return record;
}

// A data manager on a virtual printer.
class ServedManager {
  public:
    using Transport = OnePrinterLibrary::Transport;

    explicit ServedManager(const QByteArray &profile, Transport transport = Transport::Virtual)
        : ServedManager(printerOf(profile), transport) {}
    // A silent printer inside the process is given up at once: it answers within the request.
    explicit ServedManager(std::shared_ptr<VirtualPrinter> printer,
                           Transport transport = Transport::Virtual)
        : served(std::move(printer), transport, {}, transport == Transport::Virtual ? 2 : 5000) {
        installLibrary(served.library());
        manager = DWTDataManager::dataManager(served.entry());
    }
    ~ServedManager() {
        manager.reset();
        installLibrary(nullptr);
    }

    VirtualPrinter &printer() { return served.printer(); }

    // Sets what goes wrong from now on, from the description of the faults.
    void setFaults(const QByteArray &faults) { printer().setFaults(faultsOf(faults)); }
    // Enters these values of a category.
    void change(const QString &viewKey, const CategoryDictionary &values) {
        auto category = manager->setupDataFromChangeData(viewKey).value_or(CategoryDictionary());
        category.insert(values);
        manager->setupDataFromMainView(category, viewKey);
    }
    void enter(const char *written) {
        const SettingRecord record = recordOf(written);
        for (auto i = record.begin(); i != record.end(); ++i) change(i.key(), *i);
    }
    void sendAndWait() {
        manager->sendDataToPrinter();
        MainThread::finishBackgroundWork();
    }

    OnePrinterLibrary served;
    std::shared_ptr<DWTDataManager> manager;
};

// The items of settings.
inline QList<ItemCode> itemsOf(const QList<const Setting *> &settings) {
    QList<ItemCode> codes;
    for (const Setting *const setting : settings)
        if (!codes.contains(setting->item.code)) codes << setting->item.code;
    return codes;
}

// A value as text: texts in quotes, addresses dotted, bytes as hexadecimal digits in brackets.
struct ValueText {
    QString operator()(int number) const { return QString::number(number); }
    QString operator()(const QString &text) const { return u'\'' + text + u'\''; }
    QString operator()(const QStringList &octets) const { return octets.join(u'.'); }
    QString operator()(const QByteArray &bytes) const {
        return u'<' + QString::fromLatin1(bytes.toHex()) + u'>';
    }
};

// A category as text, in the order of its keys, which stand without "DWT_" and the next word.
inline std::string asText(const std::optional<CategoryDictionary> &category) {
    if (!category) return "nothing";
    QStringList values;
    for (auto i = category->begin(); i != category->end(); ++i)
        values << i.key().section(u'_', 2) + u'=' + std::visit(ValueText(), *i);
    return values.join(u' ').toStdString();
}

// A record as text, with a "|" behind each category.
inline std::string asText(const SettingRecord &record) {
    std::string text;
    for (const CategoryDictionary &category : record) text += asText(category) + '|';
    return text;
}
