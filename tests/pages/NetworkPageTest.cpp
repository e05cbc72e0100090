#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QTimer>

#include "pages/DWTNetworkView.h"
#include "platform/core/Texts.h"
#include "support/DataManagers.h"

namespace {

QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

// The page in a window, filled from a printer that was read.
class NetworkPage : public testing::Test {
  protected:
    explicit NetworkPage() {
        static const bool texts = installTexts();
        EXPECT_TRUE(texts);
        page = make<DWTNetworkView>();
        page->mainCustomView()->setParent(&window);
        page->initializeUI();
        page->dataManagerObject(m.manager);
        EXPECT_EQ(m.manager->setupDataFromPrinter(0), 0);
        page->showDataManager();
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        for (const QString &name : {DWT_MainDialog_SendOK_Message, DWT_MainDialog_SendNG_Message})
            observers.push_back(NotificationCenter::shared().observe(
                name, [this](const Notification &n) { state = n.name; }, page.get()));
    }
    TextField *field(const char *name) {
        auto *found = window.findChild<TextField *>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    // Replaces a field's text by a pasted one.
    void type(TextField *target, const QString &typed) {
        target->setFocus();
        target->selectAll();
        QTest::keyClick(target, Qt::Key_Backspace);
        QApplication::clipboard()->setText(typed);
        target->paste();
    }
    // The texts of the alerts that the input check shows, each answered with Return.
    QStringList alertsOf(bool expected) {
        QStringList alerts;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box) return;
            alerts << box->text();
            EXPECT_FALSE(box->informativeText().startsWith(text("DWT_"))) << "a key has no text";
            QTest::keyClick(box, Qt::Key_Return);
        });
        watch.start(1);
        EXPECT_EQ(page->itemInputCheck(), expected);
        return alerts;
    }

    ServedManager m{R"({"items": {"0x1006": "Desk", "0x1004": "desk", "0x1005": "Desk labels"}})",
                    OnePrinterLibrary::Transport::Virtual};
    QWidget window;
    std::shared_ptr<DWTNetworkView> page;
    std::vector<NotificationCenter::Observer> observers;
    QString state;
    TextField *printer() { return field("textField_NetworkPrinterName"); }
    TextField *bonjour() { return field("textField_NetworkBonjour"); }
    TextField *service() { return field("textField_NetworkBonjourService"); }
};

TEST_F(NetworkPage, ShowsTheNamesAndFollowsEveryEdit) {
    EXPECT_EQ(printer()->text(), text("Desk"));
    EXPECT_EQ(bonjour()->text(), text("desk"));
    EXPECT_EQ(service()->text(), text("Desk labels"));
    EXPECT_TRUE(page->itemCheckDifferentToDataManager() && page->itemConnectChangeCheck());

    printer()->setFocus();
    printer()->end(false);
    QTest::keyClicks(printer(), text("s"));
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    QTest::keyClick(printer(), Qt::Key_Backspace);
    EXPECT_EQ(state, DWT_MainDialog_SendNG_Message) << "the saved name was typed again";
    QTest::keyClicks(printer(), text("2"));
    EXPECT_TRUE(m.manager->isEqualToSaveData()) << "stored before editing has ended";
    QTest::keyClick(printer(), Qt::Key_Tab);
    EXPECT_EQ(textValue(*m.manager->setupDataFromChangeData(DWT_View_Key_Network),
                        DWT_SaveData_Network_Printer),
              text("Desk2"));
    EXPECT_EQ(state, DWT_MainDialog_SendOK_Message);
    EXPECT_TRUE(bonjour()->hasFocus()) << "the tab order follows the reading order";
    EXPECT_FALSE(page->itemCheckDifferentToDataManager() || page->itemConnectChangeCheck());
}

TEST_F(NetworkPage, ChecksEveryNameByItsOwnRule) {
    const struct {
        TextField *field;
        QString typed;
        bool passes;
    } cases[] = {{printer(), QString(31, u'a'), true},   {printer(), QString(32, u'a'), false},
                 {printer(), text("my-printer"), true},  {printer(), text("my_printer"), false},
                 {printer(), text("my printer"), false}, {printer(), text(""), false},
                 {bonjour(), QString(25, u'B'), true},   {bonjour(), QString(26, u'B'), false},
                 {service(), text("a ~!\"\\`{}"), true}, {service(), text("é"), false}};
    for (const auto &c : cases) {
        const QString before = c.field->text();
        type(c.field, c.typed);
        EXPECT_EQ(alertsOf(c.passes).size(), c.passes ? 0 : 1) << qPrintable(c.typed);
        type(c.field, before);
    }
    for (TextField *every : {printer(), bonjour(), service()}) type(every, text("é"));
    EXPECT_EQ(alertsOf(false),
              (QStringList{text("Printer name cannot be used"), text("Bonjour name cannot be used"),
                           text("Bonjour service name cannot be used")}));
    page->enableAllItems(false);
    EXPECT_TRUE(alertsOf(true).isEmpty()) << "disabled fields are not checked";
}

TEST_F(NetworkPage, WritesAllNamesBackAndLeavesUntouchedEmptyFieldsAlone) {
    type(service(), text("New service"));
    page->itemSetToDataManager();
    const auto change = m.manager->setupDataFromChangeData(DWT_View_Key_Network);
    EXPECT_EQ(textValue(*change, DWT_SaveData_Network_BonjourService), text("New service"));
    EXPECT_EQ(textValue(*change, DWT_SaveData_Network_Printer), text("Desk"));
    EXPECT_FALSE(page->itemConnectChangeCheck());

    const auto empty = make<DWTNetworkView>();
    empty->initializeUI();
    empty->dataManagerObject(make<DWTDataManager>());
    empty->showDataManager();
    EXPECT_TRUE(empty->itemInputCheck()) << "never filled and never touched";
}

}  // namespace
