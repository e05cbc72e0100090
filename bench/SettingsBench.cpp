#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include "Printers.h"
#include "platform/core/NotificationCenter.h"
#include "settings/DWTDataManager.h"

namespace {

void decodeText(benchmark::State &state) {
    const QByteArray reply = QByteArray::fromHex("43463b0d003b06103b5061636b696e673b00");
    for (auto _ : state) benchmark::DoNotOptimize(ItemCodec::text(reply, 0x1006));
}
BENCHMARK(decodeText)->Unit(benchmark::kMicrosecond);

void decodeAddresses(benchmark::State &state) {
    const QByteArray reply =
        QByteArray::fromHex("43463b14003b01203b01000a000005ff0000000a0000013bec");
    for (auto _ : state) benchmark::DoNotOptimize(ItemCodec::integerAndAddresses(reply, 0x2001));
}
BENCHMARK(decodeAddresses)->Unit(benchmark::kMicrosecond);

void encodeText(benchmark::State &state) {
    const QString text = QStringLiteral("Packing-Desk");
    for (auto _ : state) benchmark::DoNotOptimize(ItemCodec::textFrame(0x1006, text));
}
BENCHMARK(encodeText)->Unit(benchmark::kMicrosecond);

void encodeAddresses(benchmark::State &state) {
    const QStringList octets{QStringLiteral("192"), QStringLiteral("168"), QStringLiteral("0"),
                             QStringLiteral("10")};
    for (auto _ : state)
        benchmark::DoNotOptimize(
            ItemCodec::integerAndAddressesFrame(0x2001, 1, octets, octets, octets));
}
BENCHMARK(encodeAddresses)->Unit(benchmark::kMicrosecond);

// All 24 requests from an in-process printer; the counter says by how much the process grew.
void fullRead(benchmark::State &state) {
    const BenchPrinter bench(false);
    const auto manager = DWTDataManager::dataManager(bench.entry);
    for (int i = 0; i < 1000; ++i) manager->setupDataFromPrinter(0);
    const double before = residentKiB();
    for (auto _ : state)
        if (manager->setupDataFromPrinter(0) != 0) state.SkipWithError("the read failed");
    state.counters["grown_KiB"] = residentKiB() - before;
}
BENCHMARK(fullRead)->Unit(benchmark::kMillisecond)->Iterations(10000);

// A send from its start to its stop, with the notifications between the threads.
void fullSend(benchmark::State &state) {
    const BenchPrinter bench(false);
    const auto manager = DWTDataManager::dataManager(bench.entry);
    manager->setupDataFromPrinter(0);
    bool stopped = false;
    const auto observer = NotificationCenter::shared().observe(
        DWT_DataSend_Stop_Message, [&](const Notification &) { stopped = true; });
    for (auto _ : state) {
        stopped = false;
        manager->sendDataToPrinter();
        while (!stopped) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}
BENCHMARK(fullSend)->Unit(benchmark::kMillisecond)->UseRealTime();

// A catalogue of 1,000 network printers.
void listNetworkPrinters(benchmark::State &state) {
    Catalogue catalogue;
    for (int i = 0; i < 1000; ++i)
        catalogue.entries << PrinterEntry{
            {QStringLiteral("DeviceURI"), QStringLiteral("tcp://192.0.2.1:%1").arg(i + 1)},
            {QStringLiteral("ConnectionType"), QStringLiteral("Network")},
            {QStringLiteral("ProductName"), QStringLiteral("Larkfield L400")},
            {QStringLiteral("BonjourServiceName"), QStringLiteral("Printer %1").arg(i)}};
    installLibrary(catalogueLibrary(std::move(catalogue)));
    const auto manager = make<DWTDataManager>();
    for (auto _ : state)
        if (manager->printerList()->size() != 1000) state.SkipWithError("printers are missing");
    installLibrary(nullptr);
}
BENCHMARK(listNetworkPrinters)->Unit(benchmark::kMillisecond);

}  // namespace
