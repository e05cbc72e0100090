#include <gtest/gtest.h>

#include <QApplication>

// Tests of rooms with widgets run inside an application object, as the tool's code does.
int main(int argc, char **argv) {
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
