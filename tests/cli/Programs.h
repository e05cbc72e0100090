#pragma once

#include <sys/prctl.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>
#include <memory>
#include <vector>

#include "cli/ExitCode.h"
#include "link/Binding.h"
#include "settings/DWTDataManager.h"
#include "support/Profiles.h"
#include "zmlib/CatalogueSource.h"

// Processes of virtual-printer, each with one printer, and a catalogue that names them; the folder
// holds the files of a test.
class Printers {
  public:
    // A process for each description. Their serial numbers are "S1", "S2", ...
    explicit Printers(const QList<QByteArray> &profiles) {
        for (const QByteArray &profile : profiles) start(profile);
        QJsonArray entries;
        for (const auto &process : m_processes) {
            EXPECT_TRUE(process->waitForReadyRead());
            const QByteArray port = process->readLine().trimmed().split(':').last();
            m_entries << PrinterEntry{
                {PrinterKey::DeviceURI,
                 QStringLiteral("tcp://127.0.0.1:") + QString::fromLatin1(port)},
                {PrinterKey::ConnectionType, PrinterConnection::USB},
                {PrinterKey::ProductName, QStringLiteral("Larkfield L200")},
                {PrinterKey::SerialNumber, QStringLiteral("S%1").arg(m_entries.size() + 1)}};
        }
        writeCatalogue();
    }
    ~Printers() {
        for (const auto &process : m_processes) process->kill();
        for (const auto &process : m_processes) process->waitForFinished();
    }

    // Adds an entry, or what an entry must not be, to the catalogue.
    void add(const PrinterEntry &entry) {
        m_entries << entry;
        writeCatalogue();
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString write(const QString &name, const QByteArray &bytes) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    QByteArray read(const QString &name) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    // What the printer of a number, counted from 1, holds.
    SettingRecord recordOf(int number) const {
        Catalogue catalogue;
        for (const PrinterEntry &entry : m_entries) catalogue.add(entry);
        installLibrary(catalogueLibrary(catalogue));
        const auto manager = DWTDataManager::dataManager(m_entries[number - 1]);
        EXPECT_EQ(manager->setupDataFromPrinter(0), ReadResult::Complete);
        SettingRecord record;
        for (const QString &key : {DWT_View_Key_Network, DWT_View_Key_Ethernet,
                                   DWT_View_Key_Infrastructure, DWT_View_Key_Firmware})
            record.insert(key, manager->setupDataToMainView(key).value_or(CategoryDictionary()));
        installLibrary(nullptr);
        return record;
    }
    // Its own name, address and time-out, which the tests change together.
    std::string stateOf(int number) const {
        const SettingRecord record = recordOf(number);
        return QStringLiteral("%1 %2 %3")
            .arg(textValue(record[DWT_View_Key_Network], DWT_SaveData_Network_Printer),
                 addressValue(record[DWT_View_Key_Ethernet], DWT_SaveData_Ethernet_IPAddress)
                     .join(u'.'))
            .arg(integerValue(record[DWT_View_Key_Firmware], DWT_SaveData_Firmware_Timeout))
            .toStdString();
    }

    QString catalogue() const { return path(QStringLiteral("catalogue.json")); }

  private:
    void start(const QByteArray &profile) {
        auto process = std::make_unique<QProcess>();
        process->setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        const QString name = QStringLiteral("printer-%1.json").arg(m_processes.size());
        process->start(QStringLiteral(NST_VIRTUAL_PRINTER),
                       {QStringLiteral("--listen"), QStringLiteral("127.0.0.1:0"),
                        QStringLiteral("--profile"), write(name, profile)});
        m_processes.push_back(std::move(process));
    }
    void writeCatalogue() const {
        QJsonArray entries;
        for (const PrinterEntry &entry : m_entries) {
            QJsonObject object;
            for (auto i = entry.begin(); i != entry.end(); ++i) object.insert(i.key(), i.value());
            entries << object;
        }
        write(QStringLiteral("catalogue.json"),
              QJsonDocument(QJsonObject{{QStringLiteral("printers"), entries}}).toJson());
    }

    QTemporaryDir m_folder;
    std::vector<std::unique_ptr<QProcess>> m_processes;
    QList<PrinterEntry> m_entries;
};

// A run of the program on such printers.
struct Ended {
    ExitCode code;
    QByteArray out, err;
};

inline void prepare(QProcess &process, const Printers &printers, const QByteArray &password = {}) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ZMLIB_PRINTERS"), printers.catalogue());
    environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
    environment.remove(QStringLiteral("NETWORK_SETTING_PASSWORD"));
    if (!password.isEmpty())
        environment.insert(QStringLiteral("NETWORK_SETTING_PASSWORD"), QString::fromUtf8(password));
    process.setProcessEnvironment(environment);
    process.setProgram(QStringLiteral(NST_PROGRAM));
}

inline Ended finish(QProcess &process) {
    EXPECT_TRUE(process.waitForFinished(60000)) << "still running";
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {ExitCode(process.exitCode()), process.readAllStandardOutput(),
            process.readAllStandardError()};
}

inline Ended run(const Printers &printers, const QStringList &arguments,
                 const QByteArray &password = {}) {
    QProcess process;
    prepare(process, printers, password);
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start();
    return finish(process);
}
