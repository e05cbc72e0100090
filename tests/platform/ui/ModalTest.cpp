#include <gtest/gtest.h>

#include <QtWidgets>

#include "platform/ui/Alert.h"
#include "platform/ui/Modal.h"
#include "platform/ui/ModalWindow.h"

namespace {

// Runs the window; `action` happens once it is shown.
int run(ModalWindow &window, const std::function<void()> &action) {
    QTimer::singleShot(0, &window, action);
    return Modal::run(&window);
}

TEST(Modal, StopsTheRunOfTheWindowAndNoOther) {
    ModalWindow outer, inner;
    Modal::stop(&outer, 3);
    QList<int> outcomes;
    outcomes << run(outer, [&] {
        outcomes << run(inner, [&] {
            Modal::stop(&outer, 4);
            Modal::stop(&inner);
        });
        Modal::stop(&inner, 5);
        Modal::stop(&outer, 6);
    });
    EXPECT_EQ(outcomes, (QList<int>{Modal::stoppedOutcome, 4}));
    EXPECT_NE(Modal::stoppedOutcome, 0);
}

TEST(Alert, EndsWithItsParent) {
    auto *const parent = new QWidget;
    QTimer::singleShot(0, parent, [parent] { delete parent; });
    Alert::runModal(Alert::Style::Warning, {}, {}, parent);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
