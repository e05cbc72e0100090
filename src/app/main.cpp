#include "app/DWTPrinterSelector.h"

int main(int argc, char **argv) {
    return Application::main(argc, argv, [] { return make<DWTPrinterSelector>(); });
}
