// Lists of printers that are announced on a network of this process's own.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QElapsedTimer>

#include "Resident.h"
#include "platform/core/Waiting.h"
#include "support/NetworkBed.h"
#include "zmlib/NetworkSource.h"

namespace {

constexpr int printersInAGroup = 200;  // more of them at once take the daemon longer

// Lists so many printers again and again once all are known. The counters say how long the slowest
// check took whether something has changed, and by how much the process grew in the last 1,000
// lists.
void listing(benchmark::State &state) {
    const auto printers = static_cast<int>(state.range(0));
    NetworkBed bed;
    if (!bed.startBus() || !bed.startDaemon(1024, 65536))
        return state.SkipWithError("no avahi-daemon");
    NetworkSource source;
    for (int i = 0; i < printers; i += printersInAGroup) {
        QList<NetworkBed::Announcement> group;
        for (int k = i; k < std::min(i + printersInAGroup, printers); ++k)
            group.append({.name = "Printer " + QByteArray::number(k),
                          .texts = {"usb_MFG=Larkfield", "usb_MDL=L400"}});
        if (!bed.announce(QByteArray::number(i), group)) return state.SkipWithError("refused");
    }
    const auto areKnown = [&] { return source.list().entries.size() == printers; };
    if (!waitUntil(areKnown, QDeadlineTimer(std::chrono::minutes(2))))
        return state.SkipWithError("not all are found");
    double before = 0, slowest = 0;
    int done = 0;
    for (auto _ : state) {
        if (source.list().entries.size() != printers) state.SkipWithError("one is gone");
        state.PauseTiming();
        QElapsedTimer time;
        time.start();
        benchmark::DoNotOptimize(source.hasChanged());
        slowest = std::max(slowest, static_cast<double>(time.nsecsElapsed()) / 1e6);
        if (++done == 100) before = residentKiB();
        state.ResumeTiming();
    }
    state.counters["hasChanged_ms"] = slowest;
    state.counters["grown_KiB"] = residentKiB() - before;
}
BENCHMARK(listing)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1100)
    ->Arg(200)
    ->Arg(2000);

}  // namespace

int main(int argc, char **argv) {
    const QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
