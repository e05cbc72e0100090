#include "cli/Table.h"

#include <csv.h>

#include <QHash>
#include <QStringDecoder>
#include <algorithm>

#include "platform/core/Nearest.h"
#include "platform/core/Texts.h"
#include "settings/SettingKeys.h"
#include "settings/Wipe.h"

using namespace Qt::StringLiterals;

namespace {

struct Line {
    int number;  // where it begins
    QStringList cells;
};

// The lines of CSV text that is UTF-8; ends before the first that is not CSV, which `fault` tells.
class Lines {
  public:
    static QList<Line> of(const QByteArray &csv, Fault &fault) {
        Lines lines;
        csv_parser parser;
        csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI);
        const QByteArray first = csv.left(csv.indexOf('\n')).trimmed();
        const bool isTold = first.size() == 5 && first.startsWith("sep=");
        csv_set_delim(&parser, static_cast<unsigned char>(isTold ? first[4] : delimiterOf(csv)));
        bool whole = true;
        if (isTold) ++lines.m_number;
        for (qsizetype i = isTold ? csv.indexOf('\n') + 1 : 0; i < csv.size() && whole; ++i) {
            const char c = csv[i];
            if (lines.m_begins && c != '\n' && c != '\r') lines.begin();
            whole = csv_parse(&parser, &c, 1, cell, end, &lines) == 1;
            const bool isPair = c == '\r' && csv.mid(i + 1, 1) == "\n";
            if (c == '\n' || (c == '\r' && !isPair)) ++lines.m_number;
        }
        if (whole) whole = csv_fini(&parser, cell, end, &lines) == 0;
        csv_free(&parser);
        if (whole) return lines.m_lines;
        if (!lines.m_begins) lines.m_lines.removeLast();
        fault.place.line = lines.m_number;
        fault.kind = u"not-csv"_s;
        fault.text = localized("DWT_Localize_Cli_Fault_NotCsv");
        return lines.m_lines;
    }

  private:
    // By the first line.
    static char delimiterOf(const QByteArray &csv) {
        const QByteArray line = csv.left(csv.indexOf('\n'));
        for (const char delimiter : {',', ';', '\t'})
            if (line.contains(delimiter)) return delimiter;
        return ',';
    }

    static void cell(void *bytes, size_t size, void *self) {
        auto &lines = *static_cast<Lines *>(self);
        if (lines.m_begins) lines.begin();
        lines.m_lines.last().cells
            << QString::fromUtf8(static_cast<const char *>(bytes), static_cast<qsizetype>(size));
    }
    static void end(int, void *self) { static_cast<Lines *>(self)->m_begins = true; }

    void begin() {
        m_lines.append(Line{m_number, {}});
        m_begins = false;
    }

    QList<Line> m_lines;
    int m_number = 1;
    bool m_begins = true;  // what comes is the first of its line
};

// What a column holds: a setting, or by what a printer is known.
struct Column {
    QString name;
    const Setting *setting = nullptr;
    QString TableRow::*known = nullptr;

    // Whether it is a note of the user.
    bool isNote() const { return name.isEmpty() || name.startsWith(u'#'); }
};

constexpr std::pair<QLatin1StringView, QString TableRow::*> knownBy[] = {
    {"mac"_L1, &TableRow::mac}, {"serial"_L1, &TableRow::serial}, {"name"_L1, &TableRow::name}};

// The column with the administrator password that a printer has.
const QString loginColumn = u"login.password"_s;

QString wordsOfUnknownColumn(const QString &name) {
    QStringList known{loginColumn};
    for (const auto &[column, member] : knownBy) known << column;
    for (const Setting &setting : settings())
        if (setting.access() != Setting::Access::Read && !setting.name.isEmpty())
            known << setting.name;
    const QString words = localized("DWT_Localize_Cli_Fault_UnknownColumn");
    const QString meant = nearestOf(name, known);
    return meant.isEmpty() ? words : words + u' ' + localized("DWT_Localize_Cli_Meant").arg(meant);
}

// Makes the rows of the lines of a table.
class Reader {
  public:
    Reader(Table &table, QString file) : m_table(table), m_file(std::move(file)) {}

    void readColumns(const Line &line) {
        for (const QString &name : line.cells) {
            Column column{name, settingOf(name)};
            for (const auto &[known, member] : knownBy)
                if (name == known) column.known = member;
            m_anyKnown |= column.known != nullptr;
            if (name == loginColumn) column.known = &TableRow::login;
            if (!column.setting && !column.known && !column.isNote())
                addFault(line.number, name, wordsOfUnknownColumn(name), u"unknown-column"_s);
            else if (column.setting && column.setting->access() == Setting::Access::Read)
                addFault(line.number, name, localized("DWT_Localize_Cli_Fault_ReadOnly"),
                         u"read-only"_s);
            if (!column.isNote() &&
                std::any_of(m_columns.begin(), m_columns.end(),
                            [&](const Column &other) { return other.name == name; }))
                addFault(line.number, name, localized("DWT_Localize_Cli_Fault_Twice"), u"twice"_s);
            m_columns << column;
        }
        if (!m_anyKnown)
            addFault(line.number, {}, localized("DWT_Localize_Cli_Fault_NoKnownColumn"),
                     u"no-printer-column"_s);
    }

    // A row without any cell that is filled is none.
    void readRow(const Line &line) {
        if (std::all_of(line.cells.begin(), line.cells.end(),
                        [](const QString &cell) { return cell.isEmpty(); }))
            return;
        if (line.cells.size() != m_columns.size()) {
            addFault(
                line.number, {},
                localized("DWT_Localize_Cli_Fault_Cells")
                    .arg(QString::number(m_columns.size()), QString::number(line.cells.size())),
                u"cells"_s);
            return;
        }
        TableRow row{line.number, {}, {}, {}, {}, {}};
        for (qsizetype i = 0; i < m_columns.size(); ++i)
            if (!line.cells[i].isEmpty()) readCell(row, m_columns[i], line.cells[i]);
        checkPrinter(row);
        m_table.rows << row;
    }

  private:
    void addFault(int line, const QString &name, const QString &words, const QString &kind) {
        m_table.faults << Fault{{m_file, line, name, true}, words, kind};
    }

    void readCell(TableRow &row, const Column &column, const QString &cell) {
        if (column.known) {
            row.*column.known = column.known == &TableRow::mac ? macDigits(cell) : cell;
            if ((row.*column.known).isEmpty())
                addFault(row.line, column.name, localized("DWT_Localize_Cli_Fault_Mac"),
                         u"bad-mac"_s);
        } else if (column.setting && column.setting->access() != Setting::Access::Read) {
            const Parsed parsed = parsedText(*column.setting, cell);
            const Place place{m_file, row.line, column.name, true};
            if (parsed.fault.isEmpty())
                row.values << WantedValue{column.setting, *parsed.value, place, {}};
            else
                m_table.faults << Fault{place, parsed.fault, u"value"_s};
        }
    }

    // Only the first that is filled tells which printer it is.
    void checkPrinter(const TableRow &row) {
        for (const auto &[name, member] : knownBy) {
            const QString &value = row.*member;
            if (value.isEmpty()) continue;
            const auto seen = m_seen.constFind({name, value});
            if (seen == m_seen.constEnd())
                m_seen.insert({name, value}, row.line);
            else
                addFault(row.line, name, localized("DWT_Localize_Cli_Fault_SamePrinter").arg(*seen),
                         u"same-printer"_s);
            return;
        }
        if (m_anyKnown)
            addFault(row.line, {}, localized("DWT_Localize_Cli_Fault_NoPrinter"), u"no-printer"_s);
    }

    Table &m_table;
    const QString m_file;
    QList<Column> m_columns;
    bool m_anyKnown = false;  // whether a column tells which printer a row is for
    QHash<std::pair<QString, QString>, int> m_seen;  // the line of the first
};

}  // namespace

QString TableRow::printer() const {
    if (!mac.isEmpty()) return macText(mac);
    return serial.isEmpty() ? name : serial;
}

QString macDigits(const QString &text) {
    QString digits = text.toUpper();
    const bool hasMarks = digits.size() == 17;
    for (qsizetype i = 14; hasMarks && i > 0; i -= 3)
        if (digits[i] == u':' || digits[i] == u'-') digits.remove(i, 1);
    const bool isMac =
        digits.size() == 12 && Rules::isText(digits, Rules::hexadecimalCharacters, 12, 12, true);
    return isMac ? digits : QString();
}

Table tableFromCsv(const QByteArray &bytes, const QString &file) {
    Table table;
    Fault fault{{file}, {}};
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    QString decoded = decoder.decode(bytes);
    if (decoder.hasError()) {
        fault.kind = u"not-utf8"_s;
        fault.text = localized("DWT_Localize_Cli_Fault_NotUtf8");
        table.faults << fault;
        return table;
    }
    QByteArray csv = decoded.toUtf8();
    const QList<Line> lines = Lines::of(csv, fault);
    wipe(decoded);
    wipe(csv);
    Reader reader(table, file);
    if (!lines.isEmpty()) reader.readColumns(lines.first());
    for (qsizetype i = 1; i < lines.size(); ++i) reader.readRow(lines[i]);
    if (table.rows.isEmpty() && fault.text.isEmpty() && table.faults.isEmpty())
        fault = {{file}, localized("DWT_Localize_Cli_Fault_NoRows"), u"no-rows"_s};
    if (!fault.text.isEmpty()) table.faults << fault;
    table.faults += repeatedAddresses(table.rows);
    return table;
}

Table tableFromFile(const QString &path) {
    Fault fault;
    auto bytes = readInput(path, fault);
    if (!bytes) return {{}, {fault}};
    Table table = tableFromCsv(*bytes, path);
    wipe(*bytes);
    return table;
}

QList<Fault> repeatedAddresses(const QList<TableRow> &rows) {
    QList<Fault> faults;
    QHash<QString, int> seen;  // the line of the first row
    for (const TableRow &row : rows)
        for (const WantedValue &value : row.values) {
            if (!value.setting->name.endsWith(u".address.ip"_s)) continue;
            const QString address = std::get<QStringList>(value.value).join(u'.');
            if (const auto first = seen.constFind(address); first != seen.constEnd()) {
                faults << Fault{value.place,
                                localized("DWT_Localize_Cli_Fault_SameAddress").arg(*first),
                                u"same-address"_s};
            } else {
                seen.insert(address, row.line);
            }
        }
    return faults;
}

QList<QList<int>> repeatedNames(const QList<TableRow> &rows) {
    QMap<QString, QList<int>> lines;
    for (const TableRow &row : rows)
        for (const WantedValue &value : row.values)
            if (value.setting->key == DWT_SaveData_Network_Printer)
                lines[std::get<QString>(value.value).toLower()] << row.line;
    QList<QList<int>> repeated = lines.values();
    repeated.removeIf([](const QList<int> &one) { return one.size() < 2; });
    return repeated;
}

QList<WantedValue> merged(const QList<WantedValue> &below, const QList<WantedValue> &above) {
    QList<WantedValue> values;
    for (const WantedValue &value : below)
        if (std::none_of(above.begin(), above.end(),
                         [&](const WantedValue &other) { return other.setting == value.setting; }))
            values << value;
    return values + above;
}
