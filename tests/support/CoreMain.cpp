#include <gtest/gtest.h>

#include <QCoreApplication>

#include "platform/core/Texts.h"
#include "support/Arguments.h"

char **programArguments = nullptr;

// Tests of rooms without widgets run inside an application object, as the tool's code does, with
// its texts.
int main(int argc, char **argv) {
    programArguments = argv;
    QCoreApplication app(argc, argv);
    installTexts();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
