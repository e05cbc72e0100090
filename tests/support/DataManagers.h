#pragma once

#include <QTest>

#include "link/Binding.h"
#include "settings/DWTDataManager.h"
#include "support/Catalogues.h"

inline QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

// A data manager on a virtual printer, over either transport.
class ServedManager {
  public:
    ServedManager(const QByteArray &profile, OnePrinterLibrary::Transport transport)
        : served(printerOf(profile), transport) {
        installLibrary(served.library());
        manager = DWTDataManager::dataManager(served.entry());
        manager->setScanInterval(std::chrono::milliseconds(10));
    }
    ~ServedManager() {
        manager.reset();
        installLibrary(nullptr);
    }

    VirtualPrinter &printer() { return served.printer(); }

    // Sets what goes wrong from now on, from the description of the faults.
    void setFaults(const QByteArray &faults) {
        printer().setFaults(printerOf("{\"faults\": " + faults + "}")->faults());
    }

    // A saved category as text: "KEY=VALUE" by key, without the keys' common beginning; texts in
    // quotes.
    QString saved(const QString &viewKey) { return asText(manager->setupDataToMainView(viewKey)); }
    QString changed(const QString &viewKey) {
        return asText(manager->setupDataFromChangeData(viewKey));
    }

    OnePrinterLibrary served;
    std::shared_ptr<DWTDataManager> manager;

  private:
    static QString asText(const std::optional<CategoryDictionary> &category) {
        if (!category) return QStringLiteral("nothing");
        struct Printed {
            QString operator()(const QString &value) const { return u'\'' + value + u'\''; }
            QString operator()(int value) const { return QString::number(value); }
            QString operator()(const QStringList &value) const { return value.join(u'.'); }
            QString operator()(const QByteArray &value) const { return text(value.toHex()); }
        };
        QStringList values;
        for (auto value = category->begin(); value != category->end(); ++value)
            values << value.key().mid(13) + u'=' + std::visit(Printed(), *value);
        return values.join(u' ');
    }
};

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
