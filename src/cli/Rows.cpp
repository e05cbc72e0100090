#include "cli/Rows.h"

#include <algorithm>

namespace {

// The first of what a row knows of its printer counts.
bool isFor(const TableRow &row, const Rows::Printer &printer) {
    if (!row.mac.isEmpty()) return printer.macs.contains(row.mac);
    if (!row.serial.isEmpty()) return printer.serial == row.serial;
    return printer.name == row.name;
}

bool isByName(const TableRow &row) {
    return row.mac.isEmpty() && row.serial.isEmpty();
}

}  // namespace

Rows::Rows(QList<TableRow> rows, bool again) : m_rows(std::move(rows)), m_again(again) {}

bool Rows::needNames() const {
    return std::any_of(m_rows.begin(), m_rows.end(), isByName);
}

Rows::Claim Rows::claim(const Printer &printer, qsizetype namesakes) {
    const TableRow *row = nullptr;
    QList<int> lines;
    for (const TableRow &other : m_rows) {
        if (!isFor(other, printer)) continue;
        if (!row) row = &other;
        lines << other.line;
        m_states[other.line];  // its printer is there, whatever comes of it
    }
    if (!row) return {Claim::Kind::NoRow};
    if (lines.size() > 1) return {Claim::Kind::SeveralRows, row, lines};
    if (isByName(*row) && namesakes > 1) return {Claim::Kind::SeveralPrinters, row, lines};
    State &state = m_states[row->line];
    const bool isSame = state.doneFor == printer.identity();
    if (state.busy || (!state.doneFor.isEmpty() && !isSame))
        return {Claim::Kind::RowUsed, row, lines};
    if (isSame && !m_again) return {Claim::Kind::DoneBefore, row, lines};
    state.busy = true;
    return {Claim::Kind::Granted, row, lines};
}

void Rows::release(const TableRow &row, const Printer &printer, bool done) {
    State &state = m_states[row.line];
    state.busy = false;
    if (done) state.doneFor = printer.identity();
}

void Rows::see(const Printer &printer) {
    for (const TableRow &row : m_rows)
        if (isFor(row, printer)) m_states[row.line];
}

bool Rows::isAllDone() const {
    return std::all_of(m_rows.begin(), m_rows.end(), [this](const TableRow &row) {
        return !m_states.value(row.line).doneFor.isEmpty();
    });
}

QList<const TableRow *> Rows::missing() const {
    QList<const TableRow *> rows;
    for (const TableRow &row : m_rows)
        if (!m_states.contains(row.line)) rows << &row;
    return rows;
}
