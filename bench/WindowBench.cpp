#include <benchmark/benchmark.h>

#include <QPushButton>
#include <QTest>

#include "app/DWTPrinterSelector.h"
#include "platform/core/Texts.h"

namespace {

// From Return in the printer list to the painted window of the first demo printer, read in full.
void openPrinter(benchmark::State &state) {
    const auto selector = make<DWTPrinterSelector>();
    selector->awakeFromNib();
    for (auto _ : state) {
        state.PauseTiming();
        selector->applicationDidFinishLaunching();
        auto *list = selector->window()->findChild<TableView *>();
        list->selectRow(0);
        state.ResumeTiming();
        QTest::keyClick(list, Qt::Key_Return);
        if (selector->window()->isVisible()) state.SkipWithError("the printer cannot be opened");
        Window *const opened = selector->mainSettingWindow()->window();
        opened->repaint();
        QApplication::processEvents();
        state.PauseTiming();
        opened->close();
        state.ResumeTiming();
    }
}
BENCHMARK(openPrinter)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char **argv) {
    qputenv("ZMLIB_PRINTERS", "demo");
    Application application(argc, argv);
    installTexts();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
