// nst-usb-bench: the USB transport beside a bare loop over libusb on the same emulated printer. Run
// it with LD_PRELOAD=libumockdev-preload.so.0; docs/benchmarks.md has the command.

#include <benchmark/benchmark.h>
#include <libusb.h>

#include <QCoreApplication>

#include "Resident.h"
#include "support/UsbEmulator.h"
#include "zmlib/UsbSource.h"

namespace {

const QByteArray start = QByteArray::fromHex("1b7b045501567d");
const QByteArray request = QByteArray::fromHex("1b7b056606107c7d");
const QString uri = QStringLiteral("usb:///Larkfield/L200?serial=0001");

std::shared_ptr<VirtualPrinter> printer() {
    return std::make_shared<VirtualPrinter>(*profileFromJson({}).profile);
}

// Writes a request and reads its reply, as a channel does. The counter says by how much the process
// grew in the last 10,000.
void exchangeOfTheTransport(benchmark::State &state) {
    const UsbBed bed;
    const auto behind = printer();
    const UsbEmulator emulator(bed, behind);
    UsbSource source;
    const QDeadlineTimer deadline(QDeadlineTimer::Forever);
    const auto opened = source.open(uri, deadline);
    if (!opened.transport) return state.SkipWithError("no printer: is the preload library there?");
    opened.transport->write(start, deadline);
    double before = 0;
    int done = 0;
    for (auto _ : state) {
        QByteArray reply;
        opened.transport->drain({}, QDeadlineTimer(drainWithin));
        opened.transport->write(request, deadline);
        opened.transport->read(reply, 512, deadline);
        if (reply.isEmpty()) state.SkipWithError("no reply");
        behind->clearLog();  // it would grow, as it is meant to
        if (++done == 1000) before = residentKiB();
    }
    if (done > 1000) state.counters["grown_KiB"] = residentKiB() - before;
}
BENCHMARK(exchangeOfTheTransport)->Unit(benchmark::kMicrosecond)->UseRealTime()->Iterations(11000);

void exchangeOfABareLoop(benchmark::State &state) {
    const UsbBed bed;
    const UsbEmulator emulator(bed, printer());
    libusb_context *context = nullptr;
    libusb_init(&context);
    auto *const device = libusb_open_device_with_vid_pid(context, 0x1234, 0xabcd);
    if (!device || libusb_claim_interface(device, 0) != LIBUSB_SUCCESS)
        return state.SkipWithError("no printer: is the preload library there?");
    const auto move = [&](unsigned char endpoint, QByteArray bytes) {
        int moved = 0;
        libusb_bulk_transfer(device, endpoint, reinterpret_cast<unsigned char *>(bytes.data()),
                             static_cast<int>(bytes.size()), &moved, 0);
        return moved;
    };
    move(0x02, start);
    for (auto _ : state) {
        move(0x02, request);
        if (move(0x81, QByteArray(512, '\0')) == 0) state.SkipWithError("no reply");
    }
    libusb_release_interface(device, 0);
    libusb_close(device);
    libusb_exit(context);
}
BENCHMARK(exchangeOfABareLoop)->Unit(benchmark::kMicrosecond)->UseRealTime()->Iterations(11000);

// 50 devices, 5 of them printers.
void listing(benchmark::State &state) {
    const UsbBed bed;
    std::vector<std::unique_ptr<UsbEmulator>> devices;
    for (int i = 0; i < 50; ++i) {
        UsbEmulator::Description description;
        description.port = "1-" + QByteArray::number(i + 1);
        description.address = i + 1;
        description.deviceId = "MFG:Larkfield;MDL:L200;";
        description.serial = QByteArray::number(i);
        if (i % 10 != 0) description.interface = "0904000002ff010200";
        devices.push_back(std::make_unique<UsbEmulator>(bed, printer(), description));
    }
    UsbSource source;
    int openings = 0;
    for (auto _ : state)
        if (source.list().entries.size() != 5) state.SkipWithError("not five printers");
    for (const auto &device : devices) openings += device->opens;
    state.counters["openings"] = openings;
}
BENCHMARK(listing)->Unit(benchmark::kMillisecond)->UseRealTime();

// What a listing costs that finds nothing, the first of a process above all.
void firstListingWithoutUsb(benchmark::State &state) {
    const UsbBed bed;
    for (auto _ : state) {
        UsbSource source;
        if (!source.list().entries.isEmpty()) state.SkipWithError("a printer");
    }
}
BENCHMARK(firstListingWithoutUsb)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char **argv) {
    const QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
