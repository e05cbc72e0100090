// Settings in JSON, on arbitrary bytes: what is given can be changed, keeps its rule or says which
// it breaks, and is never given at a line that is not there.

#include "settings/SettingsFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray json(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const GivenSettings given = settingsFromJson(json, {});
    const auto lines = json.count('\n') + 1;
    for (const WantedValue &value : given.values) {
        if (value.setting->access() == Setting::Access::Read) __builtin_trap();
        if (value.place.line < 1 || value.place.line > lines) __builtin_trap();
    }
    for (const Fault &fault : given.faults)
        if (fault.place.line > lines) __builtin_trap();
    // What a printer has taken is no change any more.
    const Plan plan = planOf(SettingRecord(), given.values);
    for (const Plan::Change &change : planOf(plan.record, given.values).changes)
        if (given.faults.isEmpty() && !change.setting->isSecret()) __builtin_trap();
    return 0;
}
