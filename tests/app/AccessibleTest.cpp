// The whole job through what assistive technologies see and do, without mouse and keys.

#include "SelectionWindow.h"

namespace {

class Accessible : public SelectionWindow {
  protected:
    // What is inside a window, shown, in this role and under this name.
    static QAccessibleInterface *find(QAccessibleInterface *in, QAccessible::Role role,
                                      const QString &name) {
        if (!in || in->state().invisible) return nullptr;
        if (in->role() == role && in->text(QAccessible::Name) == name) return in;
        for (int i = 0; i < in->childCount(); ++i)
            if (auto *found = find(in->child(i), role, name)) return found;
        return nullptr;
    }
    static QAccessibleInterface *get(QWidget *window, QAccessible::Role role, const char *name) {
        auto *found = find(QAccessible::queryAccessibleInterface(window), role, text(name));
        if (!found) scriptFailed(text("nothing is called ") + text(name));
        return found;
    }
    // A button is pressed visibly, which takes its time.
    static void pressed(QWidget *window, const char *button) {
        auto *const actions = get(window, QAccessible::Button, button)->actionInterface();
        actions->doAction(QAccessibleActionInterface::pressAction());
    }
    static void write(QWidget *window, const char *field, const char *typed) {
        auto *const edited = get(window, QAccessible::EditableText, field);
        const int all = edited->textInterface()->characterCount();
        edited->editableTextInterface()->replaceText(0, all, text(typed));
    }
};

TEST_F(Accessible, APrinterIsChosenChangedAndSentThroughTheTreeAlone) {
    walk.launch();
    auto *const rows = get(window(), QAccessible::Table, "Printer")->tableInterface();
    ASSERT_EQ(rows->cellAt(1, 0)->text(QAccessible::Name), text("Dispatch"));
    EXPECT_TRUE(rows->selectRow(1));
    pressed(window(), "Open");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !isListed(); }));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(walk.main())->text(QAccessible::Name),
              text("Dispatch – Network Setting Tool"));
    write(walk.main(), "Bonjour name", "gate 2");
    auto *const name = get(walk.main(), QAccessible::EditableText, "Bonjour name");
    name->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    controlOf(walk.main(), "outlineView_Main")->setFocus();
    EXPECT_TRUE(name->text(QAccessible::Description).startsWith(text("1 to 25 characters")));
    write(walk.main(), "Bonjour name", "gate-2");
    walk.dialogs()
        .on("", [](QWidget *alert) { pressed(alert, "OK"); })
        .on("view_SendLogin",
            [](QWidget *dialog) {
                write(dialog, "Password", "open123");
                pressed(dialog, "Log in");
            })
        .on("view_SendConfirm",
            [](QWidget *dialog) {
                auto *const changes = get(dialog, QAccessible::Tree, "What will change");
                EXPECT_TRUE(find(changes, QAccessible::TreeItem, text("gate-2")));
                pressed(dialog, "Send");
            })
        .said("view_SendEnd", "heading_Send", "Sent and verified",
              [](QWidget *dialog) { pressed(dialog, "OK"); });
    pressed(walk.main(), "Send to printer…");
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return walk.dialogs().isDone() && !QApplication::activeModalWidget(); }, 20000));
    EXPECT_EQ(walk.held("virtual://dispatch", 0x1004), QByteArray("gate-2"));
}

}  // namespace
