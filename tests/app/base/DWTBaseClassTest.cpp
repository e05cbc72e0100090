#include <gtest/gtest.h>

#include <QCoreApplication>

#include "app/base/DWTBaseClass.h"

namespace {

QStringList steps;

// A chain of two classes, as the pages have it.
template <bool accepts>
struct Middle : DWTBaseClass {
    ~Middle() override { steps << QStringLiteral("~Middle"); }
    bool init() override {
        steps << QStringLiteral("Middle");
        return DWTBaseClass::init() && accepts;
    }
};
template <bool accepts>
struct Leaf : Middle<accepts> {
    ~Leaf() override { steps << QStringLiteral("~Leaf"); }
    bool init() override {
        if (!Middle<accepts>::init()) return false;
        steps << QStringLiteral("Leaf");
        return true;
    }
};

TEST(BaseClass, ReleasingDropsOneReferenceAndARefusedSetUpGivesNothing) {
    auto leaf = make<Leaf<true>>();
    ASSERT_TRUE(leaf);
    auto other = leaf;
    leaf->nsObjectRelease(leaf);
    EXPECT_FALSE(leaf);
    EXPECT_EQ(other.use_count(), 1);
    other->nsObjectRelease(other);
    EXPECT_EQ(steps.join(u' '), QStringLiteral("Middle Leaf ~Leaf ~Middle"));
    steps.clear();
    EXPECT_FALSE(make<Leaf<false>>());
    EXPECT_EQ(steps.join(u' '), QStringLiteral("Middle ~Leaf ~Middle"));
}

TEST(BaseClass, LaunchModeIsReadFromTheArguments) {
    const std::pair<std::vector<std::string>, bool> cases[] = {{{"t", "-installer"}, true},
                                                               {{"t", "a", "-INSTALLER"}, true},
                                                               {{"t"}, false},
                                                               {{"t", "-Installers"}, false},
                                                               {{"t", "Installer"}, false},
                                                               {{"t", "-Installer "}, false}};
    for (auto [texts, installer] : cases) {
        std::vector<char *> argv;
        for (std::string &text : texts) argv.push_back(text.data());
        int argc = static_cast<int>(argv.size());
        const QCoreApplication app(argc, argv.data());
        EXPECT_EQ(DWTBaseClass::BaseClass()->checkLunchedMode(), installer) << texts.back();
    }
}

}  // namespace
