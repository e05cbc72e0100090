// Tables, on arbitrary bytes: without a fault, every row says which printer it is for, and gives
// only what keeps its rule.

#include "cli/Table.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray csv(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const Table table = tableFromCsv(csv, {});
    int line = 1;
    for (const TableRow &row : table.rows) {
        if (row.line <= line || row.line > csv.count('\n') + csv.count('\r') + 1) __builtin_trap();
        line = row.line;
        if (!table.faults.isEmpty()) continue;
        if (row.printer().isEmpty()) __builtin_trap();
        for (const WantedValue &value : row.values)
            if (!value.brokenRule.isEmpty()) __builtin_trap();
    }
    if (table.rows.isEmpty() && table.faults.isEmpty()) __builtin_trap();
    return 0;
}
