#pragma once

#include "app/DWTPrinterSelector.h"
#include "app/PrinterList.h"
#include "link/Binding.h"
#include "support/DialogScript.h"
#include "virtualprinter/VirtualPrinter.h"
#include "zmlib/CatalogueSource.h"

inline Catalogue demoCatalogue() {
    qputenv("ZMLIB_PRINTERS", "demo");
    return catalogueFromEnvironment();
}

// One change through the real windows, from the printer list to what the printer holds afterwards.
class Walk {
  public:
    // Told after every step, with the window that shows its result.
    using Report = std::function<void(const QString &step, QWidget *window)>;

    explicit Walk(
        const Catalogue &catalogue, Report report = [](const QString &, QWidget *) {})
        : m_catalogue(catalogue), m_report(std::move(report)) {
        installLibrary(catalogueLibrary(catalogue));
        selector = make<DWTPrinterSelector>();
        selector->awakeFromNib();
    }
    ~Walk() {
        selector.reset();
        installLibrary(nullptr);
    }

    void launch() {
        selector->applicationDidFinishLaunching();
        const auto *printers = controlOf<PrinterList>(selector->window(), "view_Printerlist");
        [[maybe_unused]] const bool whole =
            QTest::qWaitFor([&] { return !printers->isVisible() || !printers->isLooking(); });
        report(QStringLiteral("%1 printers are listed").arg(list()->model()->rowCount()),
               selector->window());
    }
    // Selects the printer of this name in the list and opens it with Return. False when it is not
    // listed or could not be opened.
    bool open(const QString &name) {
        const auto found = list()->model()->match(list()->model()->index(0, 0), Qt::DisplayRole,
                                                  name, 1, Qt::MatchExactly);
        if (found.isEmpty()) return false;
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {},
                          list()->visualRect(found.first()).center());
        QTest::keyClick(list(), Qt::Key_Return);
        if (selector->window()->isVisible()) return false;
        if (!QTest::qWaitForWindowActive(main())) return false;
        report(name + QStringLiteral(" is opened and read"), main());
        return true;
    }
    void type(const char *field, const QString &typed) {
        typeInto(controlOf<QLineEdit>(main(), field), typed);
        report(QStringLiteral("\"%1\" is typed").arg(typed), main());
    }
    // Sends, with the password when there is one.
    void send(const char *password) {
        m_dialogs.on("", [this](QWidget *alert) {
            report(QStringLiteral("the change of a name is warned of"), alert);
            QTest::keyClick(alert, Qt::Key_Return);
        });
        if (password)
            m_dialogs.on("view_SendLogin", [this, password](QWidget *dialog) {
                typeInto(controlOf<QLineEdit>(dialog, "textField_Password"), text(password));
                report(QStringLiteral("the password is typed"), dialog);
                QTest::keyClick(dialog, Qt::Key_Return);
            });
        m_dialogs.on("view_SendConfirm", [this](QWidget *dialog) {
            report(QStringLiteral("the send is confirmed"), dialog);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        m_dialogs.on("view_SendEnd", [this](QWidget *dialog) {
            report(QStringLiteral("the settings are sent"), dialog);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        press("button_MainSend");
    }
    void readAgain() {
        press("button_MainNewSetting");
        report(QStringLiteral("the printer is read again"), main());
    }
    QString shown(const char *field) { return controlOf<QLineEdit>(main(), field)->text(); }
    // What the virtual printer of this URI holds now.
    QByteArray held(const char *uri, quint16 item) const {
        return m_catalogue.virtualPrinters[QLatin1String(uri)]->item(item);
    }
    void press(const char *button) { ::press(main(), button); }
    Window *main() { return selector->mainSettingWindow()->window(); }
    TableView *list() { return controlOf<TableView>(selector->window(), "tableView_Printerlist"); }
    DialogScript &dialogs() { return m_dialogs; }

    std::shared_ptr<DWTPrinterSelector> selector;

  private:
    void report(const QString &step, QWidget *window) { m_report(step, window); }

    const Catalogue m_catalogue;
    const Report m_report;
    DialogScript m_dialogs;
};
