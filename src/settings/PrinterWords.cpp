#include "settings/PrinterWords.h"

#include "platform/core/Texts.h"
#include "settings/SettingRecord.h"

QString wordsOf(const PrinterProblem &problem) {
    QString text;
    switch (problem.kind) {
        case PrinterProblem::EmptyCatalogue:
            return localized("DWT_Localize_PrinterList_Empty_Catalogue");
        case PrinterProblem::NoNetworkService:
            return localized("DWT_Localize_PrinterList_Problem_NoNetworkService");
        case PrinterProblem::NoPermission:
            text = localized("DWT_Localize_PrinterList_Problem_NoPermission");
            break;
        case PrinterProblem::InUse:
            text = localized("DWT_Localize_PrinterList_Problem_InUse");
            break;
        case PrinterProblem::BadFile:
            text = localized("DWT_Localize_PrinterList_Problem_BadFile");
            break;
    }
    return text.arg(shownText(problem.subject));
}

QString whereaboutsOf(const PrinterEntry &entry) {
    if (entry.contains(PrinterKey::SerialNumber))
        return localized("DWT_Localize_PrinterList_SerialNumber")
            .arg(entry[PrinterKey::SerialNumber]);
    if (entry.contains(PrinterKey::Port))
        return localized("DWT_Localize_PrinterList_Port").arg(entry[PrinterKey::Port]);
    return entry.value(PrinterKey::Address);
}

QString listedName(const PrinterEntry &entry) {
    for (const QString &name : {readableText(entry.value(PrinterKey::MachineName)),
                                shownText(entry.value(PrinterKey::BonjourServiceName))})
        if (!name.isEmpty()) return name;
    return shownText(entry.value(PrinterKey::ProductName));
}
