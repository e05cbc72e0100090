// Settings in files, and the report on paper.

#include <QFileDialog>
#include <QJsonDocument>
#include <QPrintDialog>
#include <QPrinter>
#include <QSaveFile>
#include <QTextDocument>

#include "mainwindow/DWTMainSettingWindow.h"
#include "platform/core/Texts.h"
#include "settings/SettingsFile.h"

using namespace Qt::StringLiterals;

namespace {

// So many faults of a file are shown at a time.
constexpr qsizetype shownFaults = 8;

QString wordsOf(const QList<Fault> &faults) {
    QStringList lines;
    for (const Fault &fault : faults.first(std::min(shownFaults, faults.size()))) {
        const Setting *const setting = settingOf(fault.place.name);
        const QString name =
            setting ? namesOf({setting}, Naming::Labels).first() : fault.place.name;
        lines << (name.isEmpty() ? fault.text : u"%1: %2"_s.arg(name, fault.text));
    }
    if (faults.size() > shownFaults)
        lines << localized("DWT_Localize_Files_More").arg(faults.size() - shownFaults);
    return lines.join(u'\n');
}

// A table a page, under its title.
QString htmlOf(const QString &title, const QList<ShownPage> &pages) {
    QString html = u"<h2>%1</h2>"_s.arg(title.toHtmlEscaped());
    for (const ShownPage &page : pages) {
        html += u"<h3>%1</h3><table cellpadding=\"2\">"_s.arg(page.title.toHtmlEscaped());
        for (const auto &[label, value] : page.lines)
            html += u"<tr><td width=\"45%\">%1</td><td>%2</td></tr>"_s.arg(label.toHtmlEscaped(),
                                                                           value.toHtmlEscaped());
        html += u"</table>"_s;
    }
    return html;
}

}  // namespace

void DWTMainSettingWindow::saveSettings() {
    const QString name = m_session->name() + u".json"_s;
    const QString path = QFileDialog::getSaveFileName(
        window_Main, withoutMnemonic(localized("DWT_Localize_Menu_SaveSettings")), name,
        localized("DWT_Localize_Files_Settings"));
    if (path.isEmpty()) return;
    QSaveFile file(path);
    const bool isOpen = file.open(QIODevice::WriteOnly);
    if (isOpen) file.write(QJsonDocument(asJson(shownRecord())).toJson());
    if (isOpen && file.commit()) return;
    Alert::runModal(Alert::Style::Warning, localized("DWT_Localize_Files_NotSaved"),
                    u"%1: %2"_s.arg(path, file.errorString()), window_Main);
}

void DWTMainSettingWindow::applyFile() {
    const QString path = QFileDialog::getOpenFileName(
        window_Main, withoutMnemonic(localized("DWT_Localize_Menu_ApplyFile")), {},
        localized("DWT_Localize_Files_Settings"));
    if (path.isEmpty()) return;
    const GivenSettings given = settingsFromFile(path);
    const Plan plan = planOf(dataManager_Object->savedData(), given.values);
    const QList<Fault> faults = given.faults.isEmpty() ? plan.faults : given.faults;
    const auto refuse = [this](const QString &information) {
        Alert::runModal(Alert::Style::Warning, localized("DWT_Localize_Files_NotApplied"),
                        information, window_Main);
    };
    if (!faults.isEmpty()) return refuse(wordsOf(faults));
    if (plan.changes.isEmpty()) return refuse(localized("DWT_Localize_Files_NoChange"));
    if (hasUnsentChanges()) return refuse(localized("DWT_Localize_Files_Unsent"));
    m_session->enter(plan);
    m_sendsFile = true;
    askToSend(plan);
    m_sendsFile = false;
    for (const auto &page : dictionary_ViewManagement) {
        page->showDataManager();
        page->itemSetToDataManager();
    }
    MSW_SendButtonDisable();
    followEdits();
}

void DWTMainSettingWindow::printReport() {
    QPrinter printer;
    QPrintDialog dialog(&printer, window_Main);
    if (dialog.exec() != QDialog::Accepted) return;
    QTextDocument document;
    document.setHtml(
        htmlOf(u"%1 %2"_s.arg(textField_SelectPrinterName->text(), textField_PrinterOwnName->text())
                   .trimmed(),
               shownPages(shownRecord())));
    document.print(&printer);
}
