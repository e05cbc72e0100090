// The tool as its main() starts it.

#include "FirstPaint.h"
#include "app/DWTPrinterSelector.h"

int main(int argc, char **argv) {
    return Application::main(argc, argv, [] {
        new FirstPaint(QCoreApplication::instance());
        return make<DWTPrinterSelector>();
    });
}
