#include <gtest/gtest.h>

#include <QCoreApplication>

#include "app/base/DWTBaseClass.h"

namespace {

QStringList steps;

// A chain of two classes, as the pages have it.
class Middle : public DWTBaseClass {
  public:
    ~Middle() override { steps << QStringLiteral("Middle_Dealloc"); }
    bool init() override {
        if (!DWTBaseClass::init()) return false;
        steps << QStringLiteral("Middle_Init");
        return accepts();
    }
    virtual bool accepts() const { return true; }
};

class Leaf : public Middle {
  public:
    ~Leaf() override { steps << QStringLiteral("Leaf_Dealloc"); }
    bool init() override {
        if (!Middle::init()) return false;
        steps << QStringLiteral("Leaf_Init");
        return true;
    }
};

class Refusing : public Leaf {
    bool accepts() const override { return false; }
};

TEST(BaseClass, SetUpRunsBaseFirstAndTearDownDerivedFirst) {
    steps.clear();
    auto leaf = make<Leaf>();
    ASSERT_TRUE(leaf);
    auto other = leaf;
    DWTBaseClass::BaseClass()->nsObjectRelease(leaf);
    EXPECT_FALSE(leaf);
    EXPECT_EQ(other.use_count(), 1) << "exactly one reference is dropped";
    other->nsObjectRelease(leaf);  // an empty field stays empty
    other->nsObjectRelease(other);
    EXPECT_EQ(steps.join(u' '),
              QStringLiteral("Middle_Init Leaf_Init Leaf_Dealloc Middle_Dealloc"));
}

TEST(BaseClass, ARefusedSetUpGivesNothing) {
    steps.clear();
    EXPECT_FALSE(make<Refusing>());
    EXPECT_EQ(steps.join(u' '), QStringLiteral("Middle_Init Leaf_Dealloc Middle_Dealloc"));
}

TEST(BaseClass, LaunchModeIsReadFromTheArguments) {
    struct Case {
        std::vector<const char *> arguments;
        bool installer;
    };
    const Case cases[] = {{{"-Installer"}, true},           {{"-installer"}, true},
                          {{"a", "b", "-INSTALLER"}, true}, {{}, false},
                          {{"-Installers"}, false},         {{"--Installer"}, false},
                          {{"Installer"}, false},           {{"-Installer "}, false}};
    for (const Case &c : cases) {
        std::vector<std::string> texts{"tool"};
        texts.insert(texts.end(), c.arguments.begin(), c.arguments.end());
        std::vector<char *> argv;
        for (std::string &text : texts) argv.push_back(text.data());
        int argc = static_cast<int>(argv.size());
        const QCoreApplication app(argc, argv.data());
        EXPECT_EQ(DWTBaseClass::BaseClass()->checkLunchedMode(), c.installer) << texts.back();
    }
}

}  // namespace
