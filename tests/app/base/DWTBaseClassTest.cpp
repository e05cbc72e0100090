#include <gtest/gtest.h>

#include <QCoreApplication>

#include "app/base/DWTBaseClass.h"

namespace {

struct Refusing : DWTBaseClass {
    bool init() override { return false; }
};

TEST(BaseClass, ReleasingDropsOneReferenceAndARefusedSetUpGivesNothing) {
    EXPECT_FALSE(make<Refusing>());
    auto field = std::make_shared<int>(1);
    const auto other = field;
    DWTBaseClass::BaseClass()->nsObjectRelease(field);
    EXPECT_FALSE(field);
    EXPECT_EQ(other.use_count(), 1);
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
