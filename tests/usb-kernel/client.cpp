// usb-kernel-client PASSWORD PRINTER-NAME BONJOUR-NAME: gives both names to the one USB printer, in
// a transaction with a login, as the tool does it. Ends with 0 only when the printer, read anew,
// holds them.

#include <QCoreApplication>
#include <algorithm>
#include <cstdio>

#include "platform/core/MainThread.h"
#include "settings/DWTDataManager.h"

namespace {

using namespace Qt::StringLiterals;

int fail(const char *message, int code = 0) {
    std::printf("usb-kernel-client: %s (%d)\n", message, code);
    return 1;
}

bool isWanted(const PrinterEntry &entry) {
    return entry.value(PrinterKey::ConnectionType) == PrinterConnection::USB &&
           entry.value(PrinterKey::ProductName) == u"Larkfield L200"_s;
}

}  // namespace

int main(int argc, char **argv) {
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) return fail("wants PASSWORD PRINTER-NAME BONJOUR-NAME");

    const auto printers = make<DWTDataManager>()->printerList().value_or(QList<PrinterEntry>());
    for (const PrinterEntry &entry : printers)
        std::printf("listed: %s\n", qUtf8Printable(entry.value(PrinterKey::DeviceURI)));
    const auto printer = std::find_if(printers.begin(), printers.end(), isWanted);
    if (printer == printers.end()) return fail("the printer is not listed");

    const auto manager = DWTDataManager::dataManager(*printer);
    if (const int result = manager->setupDataFromPrinter(0))
        return fail("the printer cannot be read", result);
    if (const int result = manager->connectPrinter())
        return fail("no connection for the login", result);
    const WriteResult login = manager->checkLoginPassword(arguments[1]);
    manager->disconnectPrinter();
    if (login.kind != WriteResult::Accepted) return fail("the login is refused", login.code);

    auto names = manager->setupDataFromChangeData(DWT_View_Key_Network).value();
    names.insert(DWT_SaveData_Network_Printer, arguments[2]);
    names.insert(DWT_SaveData_Network_Bonjour, arguments[3]);
    if (manager->setupDataToMainView(DWT_View_Key_Network) == names)
        return fail("the printer has these names already");
    manager->setupDataFromMainView(names, DWT_View_Key_Network);
    manager->sendDataToPrinter();
    MainThread::finishBackgroundWork();
    if (!manager->sendReport().isComplete()) return fail("the send is incomplete");

    const auto again = DWTDataManager::dataManager(*printer);
    if (const int result = again->setupDataFromPrinter(0))
        return fail("the printer cannot be read again", result);
    if (again->setupDataToMainView(DWT_View_Key_Network) != names)
        return fail("the printer has other names");
    std::printf("written and read back: %s, %s\n", qUtf8Printable(arguments[2]),
                qUtf8Printable(arguments[3]));
}
