#include "settings/PrinterWords.h"

#include "platform/core/Texts.h"
#include "settings/SettingRecord.h"

QString wordsOf(const PrinterProblem &problem) {
    static const QMap<PrinterProblem::Kind, const char *> keys{
        {PrinterProblem::EmptyCatalogue, "DWT_Localize_PrinterList_Empty_Catalogue"},
        {PrinterProblem::NoNetworkService, "DWT_Localize_PrinterList_Problem_NoNetworkService"},
        {PrinterProblem::NoPermission, "DWT_Localize_PrinterList_Problem_NoPermission"},
        {PrinterProblem::InUse, "DWT_Localize_PrinterList_Problem_InUse"},
        {PrinterProblem::BadFile, "DWT_Localize_PrinterList_Problem_BadFile"},
        {PrinterProblem::SilentNetworkService,
         "DWT_Localize_PrinterList_Problem_SilentNetworkService"},
        {PrinterProblem::NotLocated, "DWT_Localize_PrinterList_Problem_NotLocated"},
        {PrinterProblem::ManyAnnounced, "DWT_Localize_PrinterList_Problem_ManyAnnounced"},
        {PrinterProblem::UnknownModel, "DWT_Localize_PrinterList_Problem_UnknownModel"}};
    const QString text = localized(keys.value(problem.kind));
    return problem.subject.isEmpty() ? text : text.arg(shownText(problem.subject));
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
