#include <cstdio>

#include "app/CommandLine.h"
#include "app/DWTPrinterSelector.h"

int main(int argc, char **argv) {
    if (const auto answer = commandLineAnswer(argc, argv)) {
        std::puts(answer->toLocal8Bit().constData());
        return 0;
    }
    applyOptions(argc, argv);
    return Application::main(argc, argv, [] {
        sayProblemsOfCatalogue();
        return make<DWTPrinterSelector>();
    });
}
