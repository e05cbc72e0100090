#include "settings/SettingsFile.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QStringDecoder>
#include <algorithm>
#include <iterator>
#include <limits>
#include <nlohmann/json.hpp>

#include "platform/core/Texts.h"
#include "settings/SettingKeys.h"
#include "settings/Wipe.h"

using namespace Qt::StringLiterals;

namespace {

using nlohmann::json;

// How deep objects and arrays may be nested; those of settings are three deep.
constexpr qsizetype deepest = 16;

// The key of an object that names the file of a secret.
const QString fileKey = u"file"_s;

// The bytes of a text, of which the line of the last one read is known.
class CountedBytes {
  public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char *;
    using reference = const char &;

    explicit CountedBytes(const char *at, int *line = nullptr) : m_at(at), m_line(line) {}
    reference operator*() const { return *m_at; }
    CountedBytes &operator++() {
        if (m_line && *m_at == '\n') ++*m_line;
        ++m_at;
        return *this;
    }
    CountedBytes operator++(int) {
        const CountedBytes before = *this;
        ++*this;
        return before;
    }
    bool operator==(const CountedBytes &other) const { return m_at == other.m_at; }

  private:
    const char *m_at;
    int *m_line;
};

// A network name as hexadecimal digits of its bytes.
const QString ssidHex = u"wireless.ssidHex"_s;

bool isNoText(const QByteArray &bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    return decoder.hasError() || shownText(text) != text;
}

// Takes the values of the text as they come.
class Handler : public nlohmann::json_sax<json> {
  public:
    Handler(GivenSettings &result, QString file, const int &line)
        : m_result(result), m_file(std::move(file)), m_line(line) {}

    bool key(string_t &key) override {
        m_name.clear();
        if (!isUsed()) return true;
        m_name = QString::fromStdString(key);
        if (!group().isEmpty()) m_name.prepend(group() + u'.');
        m_nameLine = m_line;
        if (m_seen.contains(m_name))
            addFault(localized("DWT_Localize_Cli_Fault_Twice"), u"twice"_s);
        m_seen.insert(m_name);
        return true;
    }
    bool null() override {
        const bool isKnown = settingOf(m_name) || isGroup(m_name) || m_name == ssidHex;
        return isKnown ? true : wrongKind();
    }
    bool boolean(bool) override { return wrongKind(); }
    bool number_float(number_float_t, const string_t &) override { return wrongKind(); }
    bool binary(binary_t &) override { return wrongKind(); }
    bool number_integer(number_integer_t number) override {
        return take([&](const Setting &setting) { return parsedNumber(setting, number); });
    }
    bool number_unsigned(number_unsigned_t number) override {
        return number_integer(static_cast<number_integer_t>(
            std::min<number_unsigned_t>(number, std::numeric_limits<int>::max())));
    }
    bool string(string_t &value) override {
        QString given = QString::fromStdString(value);
        std::fill(value.begin(), value.end(), '\0');  // it may be a key
        if (isUsed() && isSecret(group())) {
            given = QDir::cleanPath(QFileInfo(m_file).dir().filePath(given));
            return takeSecretFile(group(), given);
        }
        if (isUsed() && m_name == ssidHex) return takeNetworkName(given.toLatin1());
        return take([&](const Setting &setting) {
            if (setting.kind != Setting::Kind::Number) return parsedText(setting, given);
            return Parsed{{}, wordsOfExpected(setting)};
        });
    }
    bool start_object(std::size_t) override {
        const bool used = isUsed() && (m_open.isEmpty() || isGroup(m_name) || isSecret(m_name));
        if (!used) wrongKind();
        return open(used);
    }
    bool end_object() override {
        const Open closed = m_open.takeLast();
        if (!closed.used || !isSecret(closed.name) || m_seen.contains(fileNameOf(closed.name)))
            return true;
        m_name = closed.name;
        return wrongKind();
    }
    bool start_array(std::size_t) override {
        wrongKind();
        return open(false);
    }
    bool end_array() override {
        m_open.removeLast();
        return true;
    }
    bool parse_error(std::size_t, const std::string &, const json::exception &) override {
        m_result.faults << Fault{
            {m_file, m_line}, localized("DWT_Localize_Cli_Fault_NotJson"), u"not-json"_s};
        return false;
    }

  private:
    // An object or an array whose end has not come yet.
    struct Open {
        QString name;
        bool used;  // false: what is in it is passed over
    };

    // Nothing more is read of a text that is nested deeper than any settings.
    bool open(bool used) {
        m_open.append({m_name, used});
        if (m_open.size() <= deepest) return true;
        m_result.faults << Fault{
            {m_file, m_line}, localized("DWT_Localize_Cli_Fault_TooDeep"), u"too-deep"_s};
        return false;
    }

    // The name of the innermost open object; empty for the outermost, and outside of it.
    QString group() const { return m_open.isEmpty() ? QString() : m_open.last().name; }
    bool isUsed() const { return m_open.isEmpty() || m_open.last().used; }

    static bool isSecret(const QString &name) {
        const Setting *const setting = settingOf(name);
        return setting && setting->isSecret();
    }
    static QString fileNameOf(const QString &secret) { return secret + u'.' + fileKey; }

    bool addFault(const QString &words, const QString &kind) {
        m_result.faults << Fault{place(), words, kind};
        return true;
    }

    Place place() const { return {m_file, m_nameLine, m_name}; }

    // The value that comes is of a kind that its name does not have.
    bool wrongKind() {
        if (!isUsed()) return true;
        if (m_open.isEmpty() || isGroup(m_name))
            return addFault(localized("DWT_Localize_Cli_Fault_Group"), u"group"_s);
        const Setting *const setting = settingOf(isSecret(group()) ? group() : m_name);
        return setting ? addFault(wordsOfExpected(*setting), u"value"_s)
                       : addFault(wordsOfUnknown(m_name), u"unknown-setting"_s);
    }

    // A setting that goes by two names is given under one of them.
    bool give(const WantedValue &value) {
        if (!m_givenAs.contains(value.setting)) m_givenAs.insert(value.setting, m_name);
        if (m_givenAs[value.setting] != m_name)
            return addFault(localized("DWT_Localize_Cli_Fault_Twice"), u"twice"_s);
        m_result.values << value;
        return true;
    }

    // Takes the value that comes, which `parse` makes of it for the setting of its name.
    template <typename Parse>
    bool take(const Parse &parse) {
        const Setting *const setting = m_open.isEmpty() ? nullptr : settingOf(m_name);
        if (!isUsed() || !setting) return wrongKind();
        if (setting->access() == Setting::Access::Read) {
            m_result.readOnly << setting->name;
            return true;
        }
        const Parsed parsed = parse(*setting);
        if (parsed.value)
            return give({setting, *parsed.value, place(), parsed.fault, m_secretFile});
        m_result.faults << Fault{place(), parsed.fault, u"value"_s};
        return true;
    }

    // A byte of the name is a character of the record's text.
    bool takeNetworkName(const QByteArray &digits) {
        const QByteArray bytes = QByteArray::fromHex(digits);
        if (bytes.toHex() != digits.toLower() || bytes.isEmpty() ||
            bytes.size() > Rules::longestSSID)
            return addFault(localized("DWT_Localize_Cli_Fault_Hex"), u"value"_s);
        return give({settingOf(ssidHex.chopped(3)), QString::fromLatin1(bytes), place(), {}});
    }

    bool takeSecretFile(const QString &name, const QString &path) {
        if (m_name != fileNameOf(name)) return wrongKind();
        m_name = name;
        Fault fault;
        const auto secret = readSecret(path, fault);
        if (!secret) return addFault(fault.text, fault.kind);
        m_secretFile = path;
        take([&](const Setting &setting) { return parsedText(setting, *secret); });
        m_secretFile.clear();
        return true;
    }

    GivenSettings &m_result;
    const QString m_file;
    const int &m_line;  // of the byte that was read last
    QString m_name;     // of the value that comes, with its groups: "wired.address.ip"
    int m_nameLine = 0;
    QString m_secretFile;  // that gives the value that comes
    QList<Open> m_open;
    QSet<QString> m_seen;
    QHash<const Setting *, QString> m_givenAs;  // under which name a setting was given
};

// Puts a value under the names of its groups.
void insert(QJsonObject &object, const QStringList &path, const QJsonValue &value) {
    if (path.size() == 1) {
        object.insert(path.first(), value);
        return;
    }
    QJsonObject group = object.value(path.first()).toObject();
    insert(group, path.mid(1), value);
    object.insert(path.first(), group);
}

}  // namespace

QJsonValue asJson(const Setting &setting, const CategoryDictionary &category) {
    const QString text = textOf(setting, category);
    if (!category.contains(setting.key)) return QJsonValue::Null;
    switch (setting.kind) {
        case Setting::Kind::Number:
        case Setting::Kind::Choice: {
            const int code = integerValue(category, setting.key);
            if (code >= 0 && code < setting.codes.size()) return setting.codes[code];
            return code;
        }
        case Setting::Kind::Address:
        case Setting::Kind::Mac:
            return text.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
        case Setting::Kind::Text:
            break;
    }
    return text;
}

QList<Fault> GivenSettings::allFaults() const {
    QList<Fault> all = faults;
    for (const WantedValue &value : values)
        if (!value.brokenRule.isEmpty()) all << Fault{value.place, value.brokenRule, u"value"_s};
    std::stable_sort(all.begin(), all.end(),
                     [](const Fault &a, const Fault &b) { return a.place.line < b.place.line; });
    return all;
}

GivenSettings settingsFromJson(const QByteArray &bytes, const QString &file) {
    GivenSettings result;
    int line = 1;
    Handler handler(result, file, line);
    const char *const begin = bytes.constData();
    json::sax_parse(CountedBytes(begin, &line), CountedBytes(begin + bytes.size()), &handler);
    return result;
}

GivenSettings settingsFromFile(const QString &path) {
    Fault fault;
    auto bytes = readInput(path, fault);
    if (!bytes) return {{}, {fault}, {}};
    GivenSettings given = settingsFromJson(*bytes, path);
    wipe(*bytes);
    return given;
}

QJsonObject asJson(const SettingRecord &record, Part part) {
    QJsonObject object;
    for (const Setting &setting : settings()) {
        const Setting::Access access = setting.access();
        const bool isWanted = part == Part::All ? access != Setting::Access::Enter
                                                : access == Setting::Access::Change;
        if (!isWanted || !record.contains(setting.viewKey)) continue;
        const CategoryDictionary category = record.value(setting.viewKey);
        const QByteArray bytes = textValue(category, setting.key).toLatin1();
        const bool isBytes = setting.key == DWT_SaveData_Infrastructure_SSID && isNoText(bytes);
        insert(object, setting.name.split(u'.'),
               isBytes ? QJsonValue() : asJson(setting, category));
        if (isBytes) insert(object, ssidHex.split(u'.'), QString::fromLatin1(bytes.toHex()));
    }
    return object;
}
