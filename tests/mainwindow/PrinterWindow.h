#pragma once

#include "link/Binding.h"
#include "mainwindow/DWTMainSettingWindow.h"
#include "platform/core/Texts.h"
#include "platform/ui/TableView.h"
#include "support/Catalogues.h"
#include "support/DialogScript.h"

// The main setting window on a virtual printer, driven by its controls.
class PrinterWindow : public testing::Test {
  protected:
    ~PrinterWindow() override {
        main.reset();
        installLibrary(nullptr);
    }

    // Makes the printer and opens the window on it; gives the result of the first reading.
    bool open(const QByteArray &profile, const PrinterEntry &more = {},
              int longestWait = OnePrinterLibrary::longestWait) {
        static const bool texts = installTexts();
        EXPECT_TRUE(texts);
        served = std::make_unique<OnePrinterLibrary>(
            printerOf(profile), OnePrinterLibrary::Transport::Virtual, more, longestWait);
        installLibrary(served->library());
        closings.clear();
        observer = NotificationCenter::shared().observe(
            DWT_MainDialog_Close_Message,
            [this](const Notification &n) { closings << n.userInfo; });
        main = make<DWTMainSettingWindow>();
        main->showWindow();
        const bool read = main->initializeData(served->entry());
        EXPECT_EQ(QTest::qWaitForWindowActive(main->window(), read ? 5000 : 0), read);
        served->printer().clearLog();
        return read;
    }
    void setFaults(const QByteArray &faults) {
        served->printer().setFaults(printerOf("{\"faults\": " + faults + "}")->faults());
    }
    template <typename Widget = QWidget>
    Widget *control(const char *name) {
        return controlOf<Widget>(main->window(), name);
    }
    TextField *field(const char *name) { return control<TextField>(name); }
    void click(const char *name) { QTest::mouseClick(control(name), Qt::LeftButton); }
    bool isEnabled(const char *name) { return control(name)->isEnabled(); }
    bool isOpen() { return main->window()->isVisible(); }
    // Replaces the text of a field with the keyboard.
    void type(const char *name, const char *typed) {
        field(name)->setFocus();
        field(name)->selectAll();
        if (*typed)
            QTest::keyClicks(field(name), text(typed));
        else
            QTest::keyClick(field(name), Qt::Key_Backspace);
    }
    // Clicks the row of a category in the outline.
    void choose(const char *category) {
        auto *outline = control<OutlineView>("outlineView_Main");
        const auto found = outline->model()->match(outline->model()->index(0, 0), Qt::DisplayRole,
                                                   text(category), 1, Qt::MatchRecursive);
        ASSERT_FALSE(found.isEmpty()) << category;
        QTest::mouseClick(outline->viewport(), Qt::LeftButton, {},
                          outline->visualRect(found.first()).center());
    }
    QString selectedCategory() {
        return control<OutlineView>("outlineView_Main")->currentIndex().data().toString();
    }

    std::unique_ptr<OnePrinterLibrary> served;
    std::shared_ptr<DWTMainSettingWindow> main;
    DialogScript dialogs;
    QList<QVariantMap> closings;  // the user information of every close notification
    NotificationCenter::Observer observer;
};
