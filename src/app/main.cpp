#include <cstdio>

#include "app/CommandLine.h"
#include "app/DWTPrinterSelector.h"
#include "platform/core/StandardDescriptors.h"

int main(int argc, char **argv) {
    takeStandardDescriptors();
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
