#include "cli/Selection.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QRegularExpression expressionOf(const QString &pattern) {
    QStringList parts;
    for (const QString &part : pattern.split(u'.'))
        parts << QRegularExpression::escape(part).replace(u"\\*"_s, u"[^.]*"_s);
    return QRegularExpression(u"^%1(\\..*)?$"_s.arg(parts.join(u"\\."_s)));
}

bool matches(const QList<QRegularExpression> &expressions, const QString &name) {
    return std::any_of(
        expressions.begin(), expressions.end(),
        [&](const QRegularExpression &expression) { return expression.match(name).hasMatch(); });
}

}  // namespace

Selection::Selection(const QString &only, const QString &without) {
    for (auto [text, expressions] : {std::pair(only, &m_only), std::pair(without, &m_without)})
        for (const QString &pattern : text.split(u',', Qt::SkipEmptyParts)) {
            m_patterns << pattern.trimmed();
            *expressions << expressionOf(pattern.trimmed());
        }
}

QString Selection::unknown() const {
    for (const QString &pattern : m_patterns) {
        const QList<QRegularExpression> one{expressionOf(pattern)};
        const auto isMeant = [&](const Setting &setting) {
            return !setting.name.isEmpty() && matches(one, setting.name);
        };
        if (std::none_of(settings().begin(), settings().end(), isMeant)) return pattern;
    }
    return {};
}

bool Selection::has(const QString &name) const {
    return (m_only.isEmpty() || matches(m_only, name)) && !matches(m_without, name);
}

// What is wrong with a file as a whole has no name, and stays.
GivenSettings Selection::of(GivenSettings given) const {
    given.values.removeIf([&](const WantedValue &value) { return !has(value.setting->name); });
    given.faults.removeIf(
        [&](const Fault &fault) { return !fault.place.name.isEmpty() && !has(fault.place.name); });
    given.readOnly.removeIf([&](const QString &name) { return !has(name); });
    return given;
}
