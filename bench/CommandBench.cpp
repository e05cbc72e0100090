// Runs the command line and prints the medians of its process time (user and system) and of its
// duration: for its help, for showing a demo printer, for provisioning 40 printers over TCP that
// answer in 2 ms, for a list of 40 of which six report no name, and for checking a table of 5,000
// rows and a file that is nested 100,000 deep; of the last also the largest memory.

#include <sys/resource.h>
#include <sys/wait.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

#include "support/PrinterServerThread.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 51;
constexpr int provisionRounds = 5;
constexpr int checkRounds = 11;
constexpr int tableRows = 5000;
constexpr int nesting = 100'000;
constexpr int printerCount = 40;
constexpr int silentCount = 6;

struct Cost {
    double process;   // ms of the processor
    double duration;  // ms
};

double childTime() {
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    const auto ms = [](const timeval &time) {
        return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

// The largest memory of a run so far, in KiB.
long largestMemory() {
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    return usage.ru_maxrss;
}

Cost runOnce(const QStringList &arguments, const QString &printers, int expected = 0) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"ZMLIB_PRINTERS"_s, printers);
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(QProcess::nullDevice());
    if (expected == 0)
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    else
        process.setStandardErrorFile(QProcess::nullDevice());
    const double before = childTime();
    QElapsedTimer clock;
    clock.start();
    process.start(QCoreApplication::applicationDirPath() + u"/../src/cli/network-setting"_s,
                  arguments);
    process.waitForFinished(-1);
    const double duration = double(clock.nsecsElapsed()) / 1e6;
    if (process.exitCode() != expected) qFatal("ended with %d", process.exitCode());
    return {childTime() - before, duration};
}

Cost median(const QStringList &arguments, const QString &printers, int count = rounds,
            int expected = 0) {
    std::vector<double> process, duration;
    for (int i = 0; i < count; ++i) {
        const Cost cost = runOnce(arguments, printers, expected);
        process.push_back(cost.process);
        duration.push_back(cost.duration);
    }
    const auto middle = [](std::vector<double> &values) {
        std::sort(values.begin(), values.end());
        return values[values.size() / 2];
    };
    return {middle(process), middle(duration)};
}

// When the first row of a list is there, and when the list has ended, in ms after its start.
struct Rows {
    double first, last;
};

Rows listOnce(const QString &printers) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"ZMLIB_PRINTERS"_s, printers);
    process.setProcessEnvironment(environment);
    QElapsedTimer clock;
    clock.start();
    process.start(QCoreApplication::applicationDirPath() + u"/../src/cli/network-setting"_s,
                  {u"list"_s});
    process.waitForReadyRead(-1);
    const double first = double(clock.nsecsElapsed()) / 1e6;
    process.waitForFinished(-1);
    const qsizetype count = process.readAllStandardOutput().count('\n');
    if (count != printerCount) qFatal("%d rows", int(count));
    return {first, double(clock.nsecsElapsed()) / 1e6};
}

void print(const char *what, const Cost &cost) {
    std::printf("%s: %.1f ms process time, %.1f ms\n", what, cost.process, cost.duration);
}

void write(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) qFatal("%s cannot be written", qPrintable(path));
    file.write(bytes);
}

// First of all, so that the largest memory is that of the nested file.
void checkFiles(const QTemporaryDir &folder) {
    const QString many = folder.filePath(u"many.csv"_s), deep = folder.filePath(u"deep.json"_s);
    QByteArray csv = "serial,names.printer,device.timeout,wired.address.ip\n";
    for (int i = 0; i < tableRows; ++i)
        csv += u"S%1,Desk-%1,90,10.0.%2.%3\n"_s.arg(i).arg(i / 250).arg(i % 250 + 1).toLatin1();
    write(many, csv);
    write(deep, QByteArray("{\"a\":").repeated(nesting));
    print("check, nested 100,000 deep", median({u"check"_s, deep}, u"demo"_s, checkRounds, 2));
    std::printf("largest memory of it: %.1f MiB\n", double(largestMemory()) / 1024);
    print("check, 5,000 rows", median({u"check"_s, many}, u"demo"_s, checkRounds));
}

}  // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    checkFiles(folder);
    const Cost help = median({u"list"_s, u"--help"_s}, u"demo"_s);
    const Cost show = median({u"show"_s, u"virtual://packing-desk"_s}, u"demo"_s);
    print("list --help", help);
    print("show, a demo printer", show);
    std::printf("show above list --help: %.1f ms process time\n", show.process - help.process);

    std::vector<std::shared_ptr<VirtualPrinter>> printers;
    std::vector<std::unique_ptr<PrinterServerThread>> servers;
    QJsonArray entries;
    for (int i = 0; i < printerCount; ++i) {
        Profile profile = *profileFromJson({{u"faults"_s, QJsonObject{{u"delay"_s, 2}}}}).profile;
        printers.push_back(std::make_shared<VirtualPrinter>(std::move(profile)));
        servers.push_back(std::make_unique<PrinterServerThread>(printers.back()));
        entries << QJsonObject{{u"DeviceURI"_s, servers.back()->uri()},
                               {u"ConnectionType"_s, u"USB"_s},
                               {u"ProductName"_s, u"Larkfield L200"_s},
                               {u"SerialNumber"_s, u"S%1"_s.arg(i)}};
    }
    const QString catalogue = folder.filePath(u"catalogue.json"_s);
    const QString table = folder.filePath(u"table.csv"_s);
    write(catalogue, QJsonDocument(QJsonObject{{u"printers"_s, entries}}).toJson());
    std::vector<Cost> costs;
    for (int round = 0; round < provisionRounds; ++round) {
        QByteArray rows = "serial,names.printer,wired.address.ip\n";
        for (int i = 0; i < printerCount; ++i)
            rows += u"S%1,Desk-%2-%1,10.0.%2.%3\n"_s.arg(i).arg(round).arg(i + 1).toLatin1();
        write(table, rows);
        costs.push_back(runOnce({u"provision"_s, table}, catalogue));
    }
    std::sort(costs.begin(), costs.end(),
              [](const Cost &a, const Cost &b) { return a.duration < b.duration; });
    print("provision, 40 printers", costs[costs.size() / 2]);

    for (int i = 0; i < silentCount; ++i) {
        SimulatedFaults silent;
        silent.items[0x1006].noReply = true;
        printers[size_t(i)]->setFaults(silent);
    }
    const Rows rows = listOnce(catalogue);
    std::printf("list of 40 with 6 silent printers: first row after %.0f ms, last after %.0f ms\n",
                rows.first, rows.last);
    return 0;
}
