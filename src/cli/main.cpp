#include <sys/prctl.h>

#include <QCoreApplication>

#include "cli/Commands.h"
#include "platform/core/StandardDescriptors.h"
#include "platform/core/Texts.h"

int main(int argc, char **argv) {
    ::prctl(PR_SET_DUMPABLE, 0);  // keys and passwords stand in its memory
    takeStandardDescriptors();
    const QCoreApplication application(argc, argv);
    installTexts();
    return int(runCommandLine(QCoreApplication::arguments()));
}
