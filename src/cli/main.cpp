#include <QCoreApplication>

#include "cli/Commands.h"
#include "platform/core/StandardDescriptors.h"
#include "platform/core/Texts.h"

int main(int argc, char **argv) {
    takeStandardDescriptors();
    const QCoreApplication application(argc, argv);
    installTexts();
    return int(runCommandLine(QCoreApplication::arguments()));
}
