#include <benchmark/benchmark.h>

#include "link/Binding.h"
#include "settings/DWTDataManager.h"
#include "virtualprinter/VirtualPrinter.h"
#include "zmlib/CatalogueSource.h"

namespace {

constexpr int printers = 10000;

// A catalogue of virtual printers, each with a description of its own.
QByteArray catalogueText() {
    QByteArrayList entries;
    for (int i = 0; i < printers; ++i) {
        const QByteArray number = QByteArray::number(i);
        entries << R"({"DeviceURI": "virtual://printer-)" + number +
                       R"(", "ConnectionType": "Network", "ProductName": "Larkfield L200",
            "BonjourServiceName": "Printer )" +
                       number + R"(", "profile": {"password": "secret", "items": {
            "0x1006": "Printer )" +
                       number + R"(", "0x2000": "02004C000101", "0x3104": "Warehouse",
            "0x2001": {"setting": 1, "address": "10.0.0.5", "mask": "255.0.0.0",
                       "gateway": "10.0.0.1"}}}})";
    }
    return "{\"printers\": [" + entries.join(',') + "]}";
}

void loadCatalogue(benchmark::State &state) {
    const QByteArray text = catalogueText();
    for (auto _ : state) {
        auto catalogue = std::make_unique<Catalogue>();
        *catalogue = catalogueFromJson(text, QStringLiteral("bench"));
        if (catalogue->entries.size() != printers) state.SkipWithError("a printer is missing");
        state.PauseTiming();
        catalogue.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(loadCatalogue)->Unit(benchmark::kMillisecond);

// The list as the tool makes it: every printer is connected and asked for its name.
void listCatalogue(benchmark::State &state) {
    Catalogue catalogue = catalogueFromJson(catalogueText(), QStringLiteral("bench"));
    for (PrinterEntry &entry : catalogue.entries) {
        entry[PrinterKey::ConnectionType] = PrinterConnection::USB;
        entry.remove(PrinterKey::BonjourServiceName);
    }
    installLibrary(catalogueLibrary(std::move(catalogue)));
    const auto manager = make<DWTDataManager>();
    for (auto _ : state)
        if (manager->printerList().value_or(QList<PrinterEntry>()).size() != printers)
            state.SkipWithError("a printer is missing");
    installLibrary(nullptr);
}
BENCHMARK(listCatalogue)->Unit(benchmark::kMillisecond);

// One frame received and one sent by a printer whose log is full.
void fullFrameLog(benchmark::State &state) {
    VirtualPrinter printer(*profileFromJson({}).profile);
    const auto channel = printer.openChannel();
    const QByteArray readName = QByteArray::fromHex("1b7b056606107c7d");
    channel->receive(QByteArray::fromHex("1b7b045501567d"));
    for (qsizetype i = 0; i < VirtualPrinter::longestLog; ++i) channel->receive(readName);
    for (auto _ : state) channel->receive(readName);
}
BENCHMARK(fullFrameLog)->Unit(benchmark::kMicrosecond);

}  // namespace
