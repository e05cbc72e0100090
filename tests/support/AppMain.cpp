#include <gtest/gtest.h>

#include "platform/core/Texts.h"
#include "platform/ui/Application.h"
#include "support/Arguments.h"
#include "support/DialogScript.h"

char **programArguments = nullptr;

void scriptFailed(const QString &what) {
    ADD_FAILURE() << qPrintable(what);
}

// Tests of rooms with widgets run inside the tool's application object, with its texts.
int main(int argc, char **argv) {
    programArguments = argv;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    Application app(argc, argv);
    installTexts();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
