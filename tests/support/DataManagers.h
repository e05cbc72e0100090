#pragma once

#include <QTest>

#include "link/Binding.h"
#include "settings/DWTDataManager.h"
#include "support/Catalogues.h"

// A data manager on a virtual printer, over either transport.
class ServedManager {
  public:
    ServedManager(const QByteArray &profile, OnePrinterLibrary::Transport transport)
        : served(printerOf(profile), transport) {
        installLibrary(served.library());
        manager = DWTDataManager::dataManager(served.entry());
    }
    ~ServedManager() {
        manager.reset();
        installLibrary(nullptr);
    }

    VirtualPrinter &printer() { return served.printer(); }

    // What the printer received since the last call, as text: "start", "update", "end", "?1006" for
    // a request, "=1006" for a setting frame.
    QString received() {
        QStringList names;
        for (const auto &frame : printer().log()) {
            if (frame.direction != VirtualPrinter::LoggedFrame::Received) continue;
            const QByteArray &b = frame.bytes;
            if (b[0] == 'C')
                names << u'=' + code(b.mid(6, 2));
            else if (b[3] == 'f')
                names << u'?' + code(b.mid(4, 2));
            else if (b[3] == 'w')
                names << QStringLiteral("update");
            else
                names << (b[4] == 1 ? QStringLiteral("start") : QStringLiteral("end"));
        }
        printer().clearLog();
        return names.join(u' ');
    }
    // Sets what goes wrong from now on, from the description of the faults.
    void setFaults(const QByteArray &faults) {
        printer().setFaults(printerOf("{\"faults\": " + faults + "}")->faults());
    }

    OnePrinterLibrary served;
    std::shared_ptr<DWTDataManager> manager;

  private:
    static QString code(QByteArray bytes) {
        std::reverse(bytes.begin(), bytes.end());
        return QString::fromLatin1(bytes.toHex());
    }
};
