#pragma once

#include "link/Binding.h"
#include "mainwindow/DWTMainSettingWindow.h"
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
    void setFaults(const QByteArray &faults) { served->printer().setFaults(faultsOf(faults)); }
    // The name that the printer holds.
    QByteArray held() { return served->printer().item(0x1004); }
    template <typename Widget = QWidget>
    Widget *control(const char *name) {
        return controlOf<Widget>(main->window(), name);
    }
    QLineEdit *field(const char *name) { return control<QLineEdit>(name); }
    QString said(const char *label) { return control<QLabel>(label)->text(); }
    bool isShown(const char *name) { return control(name)->isVisible(); }
    // The name of the printer as the window shows it.
    QString name() { return field("textField_NetworkBonjour")->text(); }
    void click(const char *button) { press(main->window(), button); }
    bool isEnabled(const char *control_) { return control(control_)->isEnabled(); }
    bool isOpen() { return main->window()->isVisible(); }
    void type(const char *line, const char *typed) { typeInto(field(line), text(typed)); }
    void typeName(const char *typed) { type("textField_NetworkBonjour", typed); }
    QModelIndex rowOf(const char *category) {
        const auto *model = control<OutlineView>("outlineView_Main")->model();
        const auto found = model->match(model->index(0, 0), Qt::DisplayRole, text(category), 1,
                                        Qt::MatchRecursive);
        EXPECT_FALSE(found.isEmpty()) << category;
        return found.value(0);
    }
    // Clicks the row of a category in the outline.
    void choose(const char *category) {
        auto *outline = control<OutlineView>("outlineView_Main");
        QTest::mouseClick(outline->viewport(), Qt::LeftButton, {},
                          outline->visualRect(rowOf(category)).center());
    }
    // What the sign beside a category in the outline says.
    QString markOf(const char *category) {
        const QModelIndex row = rowOf(category);
        const QString meaning = row.data(Qt::AccessibleDescriptionRole).toString();
        EXPECT_EQ(row.data(Qt::DecorationRole).value<QIcon>().isNull(), meaning.isEmpty());
        return meaning;
    }
    // Types into a pop-up what its item begins with.
    void pickItem(const char *popup, const char *beginning) {
        control(popup)->setFocus();
        QTest::keyClicks(control(popup), text(beginning));
    }
    void send() {
        click("button_MainSend");
        EXPECT_TRUE(dialogs.isDone());
    }
    // The change of a name warns, whatever happens then.
    DialogScript &warned() { return dialogs.alert("Connection to the printer – please note"); }
    QString selectedCategory() {
        return control<OutlineView>("outlineView_Main")->currentIndex().data().toString();
    }

    std::unique_ptr<OnePrinterLibrary> served;
    std::shared_ptr<DWTMainSettingWindow> main;
    DialogScript dialogs;
    QList<QVariantMap> closings;  // the user information of every close notification
    NotificationCenter::Observer observer;
};

inline const PrinterEntry overNetwork{{QStringLiteral("ConnectionType"), QStringLiteral("Network")},
                                      {QStringLiteral("BonjourServiceName"), QStringLiteral("D")}};
