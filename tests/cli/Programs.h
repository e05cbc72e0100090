#pragma once

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <cstdio>

#include "cli/Commands.h"
#include "link/Binding.h"
#include "support/Folder.h"
#include "support/PrinterServerThread.h"
#include "support/Profiles.h"
#include "zmlib/CatalogueSource.h"

// Printers of this process, the catalogue that names them, and the folder of the programs.
class Printers : public Folder {
  public:
    // A printer on USB for each description. Their serial numbers are "S1", "S2", ...
    explicit Printers(const QList<QByteArray> &profiles) {
        for (const QByteArray &profile : profiles) {
            m_printers << printerOf(profile);
            const QString number = QString::number(m_printers.size());
            const QString uri = QStringLiteral("virtual://") + number;
            catalogue.virtualPrinters.insert(uri, m_printers.last());
            add(uri, QStringLiteral("S") + number);
        }
    }
    // Adds a printer that is on USB with a serial number, or without one on the network.
    void add(const QString &uri, const QString &serial = {}) {
        const bool isUsb = !serial.isEmpty();
        const QString &connection = isUsb ? PrinterConnection::USB : PrinterConnection::Network;
        PrinterEntry entry{{PrinterKey::DeviceURI, uri},
                           {PrinterKey::ConnectionType, connection},
                           {PrinterKey::ProductName, QStringLiteral("Larkfield L200")}};
        if (isUsb)
            entry.insert(PrinterKey::SerialNumber, serial);
        else
            entry.insert(PrinterKey::BonjourServiceName, QStringLiteral("Goods\x1b in"));
        catalogue.add(entry);
    }

    // The printer of a number, counted from 1.
    VirtualPrinter &operator[](int number) const { return *m_printers[number - 1]; }
    // Its own name, address and time-out, which the tests change together.
    std::string stateOf(int number) const {
        const VirtualPrinter &printer = (*this)[number];
        QByteArrayList octets;
        for (const char octet : printer.item(0x2001).mid(2, 4))
            octets << QByteArray::number(quint8(octet));
        return (printer.item(0x1006) + ' ' + octets.join('.') + ' ' +
                QByteArray::number(quint8(printer.item(0x1007)[0])))
            .toStdString();
    }

    // Serves the printers to other processes; gives the path of a catalogue that they can read.
    QString serve() {
        QJsonArray entries;
        for (const PrinterEntry &entry : std::as_const(catalogue.entries)) {
            QJsonObject object;
            for (auto i = entry.begin(); i != entry.end(); ++i) object.insert(i.key(), i.value());
            const auto printer = catalogue.virtualPrinters.value(entry[PrinterKey::DeviceURI]);
            if (printer) {
                m_servers.push_back(std::make_unique<PrinterServerThread>(printer));
                object[PrinterKey::DeviceURI] = m_servers.back()->uri();
            }
            entries << object;
        }
        return write(QStringLiteral("catalogue.json"),
                     QJsonDocument(QJsonObject{{QStringLiteral("printers"), entries}}).toJson());
    }

    Catalogue catalogue;

  private:
    QList<std::shared_ptr<VirtualPrinter>> m_printers;
    std::vector<std::unique_ptr<PrinterServerThread>> m_servers;
};

// A run of the program on such printers.
struct Ended {
    ExitCode code;
    QByteArray out, err;
};

// Runs it inside this process. A silent printer is given up soon, which one that answers is in time
// for however slow the machine is: it answers inside the request.
inline Ended run(const Printers &printers, const QStringList &arguments,
                 const QByteArray &password = {}) {
    qputenv("ZMLIB_PRINTERS", "catalogue");  // the one that is installed
    qputenv("NETWORK_SETTING_PASSWORD", password);
    EXPECT_TRUE(std::freopen("/dev/null", "r", stdin) && QDir::setCurrent(printers.path({})));
    installLibrary(catalogueLibrary(printers.catalogue, 20));
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const ExitCode code =
        runCommandLine(QStringList{QStringLiteral("network-setting")} + arguments);
    const std::string out = testing::internal::GetCapturedStdout();
    const std::string err = testing::internal::GetCapturedStderr();
    installLibrary(nullptr);
    qunsetenv("ZMLIB_PRINTERS");
    return {code, QByteArray::fromStdString(out), QByteArray::fromStdString(err)};
}

inline Ended run(const Printers &printers, const char *arguments, const QByteArray &password = {}) {
    return run(printers, QString::fromUtf8(arguments).split(u' ', Qt::SkipEmptyParts), password);
}

// Starts it, or one that starts it, as a process of its own.
inline void start(QProcess &process, Printers &printers, const QString &program,
                  const QStringList &arguments) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ZMLIB_PRINTERS"), printers.serve());
    environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(printers.path({}));
    process.start(program, arguments);
}
inline Ended finish(QProcess &process) {
    EXPECT_TRUE(process.waitForFinished(60000)) << "still running";
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {ExitCode(process.exitCode()), process.readAllStandardOutput(),
            process.readAllStandardError()};
}
