#include <gtest/gtest.h>

#include <QApplication>

#include "platform/core/Texts.h"
#include "support/DialogScript.h"

void scriptFailed(const QString &what) {
    ADD_FAILURE() << qPrintable(what);
}

// Tests of rooms with widgets run inside an application with real windows, and with the texts of
// the rooms that have them.
int main(int argc, char **argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    installTexts();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
