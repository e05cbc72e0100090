#include "settings/SettingRecord.h"

#include <algorithm>
#include <limits>

#include "platform/core/Texts.h"
#include "settings/Rules.h"

namespace {

template <typename T>
T valueOf(const CategoryDictionary &category, const QString &key) {
    const auto found = category.constFind(key);
    if (found == category.constEnd()) return {};
    const T *value = std::get_if<T>(&*found);
    return value ? *value : T{};
}

}  // namespace

bool isSame(const SettingValue &a, const SettingValue &b) {
    if (a == b) return true;
    if (a.index() != b.index()) return false;
    if (const auto *address = std::get_if<QStringList>(&a))
        return Rules::isSameAddress(*address, std::get<QStringList>(b));
    const auto *text = std::get_if<QString>(&a), *other = std::get_if<QString>(&b);
    return text && *text != unreadable && *other != unreadable &&
           readableText(*text) == readableText(*other);
}

QString textValue(const CategoryDictionary &category, const QString &key) {
    return valueOf<QString>(category, key);
}

int integerValue(const CategoryDictionary &category, const QString &key) {
    return valueOf<int>(category, key);
}

QStringList addressValue(const CategoryDictionary &category, const QString &key) {
    return valueOf<QStringList>(category, key);
}

QByteArray bytesValue(const CategoryDictionary &category, const QString &key) {
    return valueOf<QByteArray>(category, key);
}

QString readableText(const QString &text) {
    if (text == unreadable) return {};
    const QByteArray bytes = text.toLatin1();
    const QString decoded = QString::fromUtf8(bytes);
    const bool isBytes = QString::fromLatin1(bytes) == text;
    return shownText(isBytes && decoded.toUtf8() == bytes ? decoded : text);
}

QString macText(const QString &digits) {
    QStringList pairs;
    for (qsizetype i = 0; i < digits.size(); i += 2) pairs << digits.mid(i, 2);
    return pairs.join(u':');
}

int integerOf(const QString &text) {
    constexpr qint64 lowest = std::numeric_limits<int>::min();
    constexpr qint64 highest = std::numeric_limits<int>::max();
    auto at = std::find_if(text.begin(), text.end(), [](QChar c) { return c != u' '; });
    const bool negative = at != text.end() && *at == u'-';
    if (negative || (at != text.end() && *at == u'+')) ++at;
    qint64 value = 0;
    for (; at != text.end() && *at >= u'0' && *at <= u'9'; ++at)
        value = std::min(highest + 1, value * 10 + (at->unicode() - u'0'));
    return static_cast<int>(std::clamp(negative ? -value : value, lowest, highest));
}
