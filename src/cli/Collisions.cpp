#include "cli/Collisions.h"

#include "cli/Look.h"
#include "platform/core/Texts.h"
#include "settings/PrinterWords.h"
#include "settings/Printers.h"
#include "settings/Values.h"

using namespace Qt::StringLiterals;

namespace {

// What the plan makes of a setting; empty when it does not change it.
QString plannedText(const Plan &plan, const Setting &setting) {
    for (const Plan::Change &change : plan.changes)
        if (change.setting == &setting) return textOf(setting, plan.record.value(setting.viewKey));
    return {};
}

}  // namespace

QList<Outcome::Warning> collisionsOf(const PrinterEntry &own, const Plan &plan) {
    const QString name =
        plannedText(plan, *settingOf(DWT_View_Key_Network, DWT_SaveData_Network_Printer));
    QStringList addresses;
    for (const AddressSetup &setup : addressSetups())
        if (const QString address = plannedText(plan, *setup.address); !address.isEmpty())
            addresses << address;
    if (name.isEmpty() && addresses.isEmpty()) return {};
    Look look;
    look.wait(QDeadlineTimer(Look::longest));
    look.leave(own);
    QList<Outcome::Warning> warnings;
    for (const PrinterEntry &other : look.printers()) {
        if (Printers::identityOf(other) == Printers::identityOf(own)) continue;
        const QString called = listedName(other);
        if (!name.isEmpty() && called.compare(name, Qt::CaseInsensitive) == 0)
            warnings << Outcome::Warning{u"name-taken"_s,
                                         localized("DWT_Localize_Cli_NameTaken").arg(name)};
        const QString address = other.value(PrinterKey::Address);
        if (addresses.contains(address))
            warnings << Outcome::Warning{
                u"address-taken"_s,
                localized("DWT_Localize_Cli_AddressTaken").arg(address, called)};
    }
    return warnings;
}
