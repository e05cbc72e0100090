#include <benchmark/benchmark.h>

#include <QApplication>

#include "link/Binding.h"
#include "mainwindow/DWTMainSettingWindow.h"
#include "platform/core/Texts.h"

namespace {

// From the picked printer to its painted pages.
void openPrinter(benchmark::State &state) {
    const PrinterEntry entry = installedLibrary()->ZMCreatePrinterURI()->value(0);
    for (auto _ : state) {
        auto window = make<DWTMainSettingWindow>();
        window->showWindow();
        if (!window->initializeData(entry)) state.SkipWithError("the printer cannot be read");
        window->window()->repaint();
        QApplication::processEvents();
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(openPrinter)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char **argv) {
    qputenv("ZMLIB_PRINTERS", "demo");
    QApplication application(argc, argv);
    installTexts();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
