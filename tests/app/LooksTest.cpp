#include "SelectionWindow.h"
#include "platform/core/Texts.h"
#include "support/HighContrast.h"
#include "support/Profiles.h"
#include "support/Rectangles.h"

namespace {

// Whether a widget shows a text that needs more room than there is.
bool isCut(const QWidget *widget) {
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (label && label->wordWrap()) return label->heightForWidth(label->width()) > label->height();
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    if (label || (button && !button->text().isEmpty()) || qobject_cast<const QGroupBox *>(widget) ||
        qobject_cast<const QComboBox *>(widget))
        return widget->minimumSizeHint().width() > widget->width();
    if (const auto *line = qobject_cast<const QLineEdit *>(widget))
        return line->fontMetrics().horizontalAdvance(line->displayText()) > line->width();
    if (qobject_cast<const QMenuBar *>(widget)) return widget->sizeHint().width() > widget->width();
    const auto *header = qobject_cast<const QHeaderView *>(widget);
    if (header && header->orientation() == Qt::Horizontal)
        for (int i = 0; i < header->count(); ++i)
            if (header->sectionSizeHint(i) > header->sectionSize(i)) return true;
    // A window as wide as the screen may scroll its pages.
    if (qobject_cast<const PanelScroller *>(widget) &&
        widget->window()->width() >= widget->screen()->availableSize().width())
        return false;
    const auto *area = qobject_cast<const QAbstractScrollArea *>(widget);
    return area && !header && area->horizontalScrollBar()->maximum() > 0;
}

// The letters that Alt works with; a text without one gives an empty one.
void expectDifferent(const QStringList &texts) {
    QStringList letters;
    for (const QString &shown : texts) letters << shown.section(u'&', 1).left(1).toLower();
    EXPECT_FALSE(letters.contains(QString())) << qPrintable(texts.join(u'|'));
    EXPECT_EQ(letters.removeDuplicates(), 0) << qPrintable(texts.join(u'|'));
}

QStringList textsOf(const QWidget *menu) {
    QStringList texts;
    for (const QAction *entry : menu->actions())
        if (!entry->isSeparator()) texts << entry->text();
    return texts;
}

// The texts are in the language of the test.
struct InLanguage : testing::WithParamInterface<QString> {
    InLanguage() { use(QLocale(GetParam())); }
    ~InLanguage() { use(QLocale::c()); }
    static void use(const QLocale &locale) {
        QLocale::setDefault(locale);
        EXPECT_TRUE(installTexts());
    }
};

// What a person cannot read whole, or a screen reader cannot name, in a language.
class Looks : public InLanguage, public SelectionWindow {
  protected:
    void look(QWidget *window) {
        QApplication::processEvents();
        QStringList mnemonics;
        for (const QWidget *widget : window->findChildren<QWidget *>()) {
            if (!widget->isVisible() || widget->window() != window) continue;
            ++read;
            const auto *button = qobject_cast<const QAbstractButton *>(widget);
            if (button && !button->text().isEmpty()) mnemonics << button->text();
            if (qobject_cast<const QMenuBar *>(widget)) {
                mnemonics << textsOf(widget);
                for (const QAction *top : widget->actions()) expectDifferent(textsOf(top->menu()));
            }
            // A layout may need another turn of the event loop.
            EXPECT_TRUE(QTest::qWaitFor([&] { return !isCut(widget); }, 2000))
                << qPrintable(widget->objectName()) << " " << widget->metaObject()->className()
                << " " << widget->width() << " of " << widget->minimumSizeHint().width();
        }
        expectDifferent(mnemonics);
        expectNothingIsCovered(window);
        static const QSet<QAccessible::Role> ofWindows{QAccessible::Window, QAccessible::Dialog,
                                                       QAccessible::AlertMessage};
        const auto role = QAccessible::queryAccessibleInterface(window)->role();
        EXPECT_TRUE(ofWindows.contains(role)) << role;
        expectNames(QAccessible::queryAccessibleInterface(window));
    }
    // Looks at a window, once for each view in the part of it.
    void lookAtEach(QWidget *window, const char *part) {
        const auto views = controlOf(window, part)
                               ->findChildren<QWidget *>(QRegularExpression(text("^view_")),
                                                         Qt::FindDirectChildrenOnly);
        if (views.isEmpty()) look(window);
        for (QWidget *shown : views) {
            for (QWidget *view : views) view->setVisible(view == shown);
            look(window);
        }
    }
    // Looks at every page, and does there what is told.
    void lookAtPages(const std::function<void()> &also = [] {}) {
        controlOf(walk.main(), "outlineView_Main")->setFocus();
        keys("Up");
        for (int i = 0; i < 7; ++i, keys("Down")) {
            look(walk.main());
            also();
        }
    }
    // Looks at a view of a dialog when a person comes to it.
    DialogScript &lookAt(const char *view, const char *button) {
        return walk.dialogs().on(
            view, [this](QWidget *dialog) { look(dialog); }, button);
    }
    void lookAtAlert() {
        walk.dialogs().on("", [this](QWidget *alert) {
            look(alert);
            keys("Return");
        });
    }
    void open(const char *name) {
        walk.launch();
        ASSERT_TRUE(walk.open(text(name)));
    }
    void pick(const char *popUp, int index) {
        auto *const choice = controlOf<QComboBox>(walk.main(), popUp);
        choice->setFocus();
        QTest::keyClick(choice, Qt::Key_Home);
        for (int i = 0; i < index; ++i) QTest::keyClick(choice, Qt::Key_Down);
    }
    // Many changes on all pages, of which three are warned of.
    void changeMuch() {
        walk.type("textField_NetworkPrinterName", text("Packing-Desk-2-first-floor"));
        walk.type("textField_NetworkBonjour", text("packing-desk-2"));
        walk.type("textField_NetworkBonjourService", QString(30, u'W'));
        ::press(walk.main(), "buttonCell_Manual");
        walk.type("textField_EthernetIpAddress", text("192.168.100.200"));
        walk.type("textField_EthernetSubnetMask", text("255.0.255.0"));
        walk.type("textField_EthernetDefaultGateway", text("10.0.0.1"));
        walk.type("textField_InfrastructureSSID", QString(32, u'W'));
        pick("popupbutton_InfrastructureAuthentic", 2);
        walk.type("textField_SimpleAPSSID", QString(20, u'W'));
        walk.type("textField_PrintTimeOut", text("120"));
    }
    void setFaults(const char *name, const QByteArray &faults) {
        printer(name).setFaults(faultsOf(faults));
    }

    // An accessible object and everything inside it.
    void expectNames(QAccessibleInterface *object) {
        static const QSet<QAccessible::Role> interactive{
            QAccessible::Button,   QAccessible::CheckBox, QAccessible::RadioButton,
            QAccessible::ComboBox, QAccessible::Table,    QAccessible::EditableText,
            QAccessible::Tree,     QAccessible::MenuItem, QAccessible::ProgressBar};
        const auto role = object->role();
        const QString name = object->text(QAccessible::Name);
        EXPECT_FALSE(name.startsWith(text("DWT_"))) << qPrintable(name) << " is a key";
        EXPECT_FALSE(name.contains(u'&')) << qPrintable(name);
        EXPECT_FALSE(role == QAccessible::EditableText && name.endsWith(u':')) << qPrintable(name);
        if (!object->state().invisible && interactive.contains(role)) {
            ++named;
            EXPECT_FALSE(name.isEmpty())
                << (object->object() ? qPrintable(object->object()->objectName()) : "") << role;
        }
        if (role == QAccessible::Table || role == QAccessible::Tree) return;
        for (int i = 0; i < object->childCount(); ++i)
            if (QAccessibleInterface *inside = object->child(i)) expectNames(inside);
    }

    int read = 0, named = 0;  // widgets looked at
};

TEST_P(Looks, NoTextIsCutAndEveryControlHasANameForAScreenReader) {
    walk.launch();
    auto *const filter = control<QLineEdit>("textField_PrinterlistFilter");
    filter->show();
    filter->setText(text("L"));  // which shows the button that clears it
    lookAtEach(window(), "view_PrinterSelector");
    filter->clear();
    ASSERT_TRUE(walk.open(text("Packing-Desk")));
    EXPECT_EQ(walk.shown("textField_InfrastructureSSID"), text("倉庫"));
    lookAtPages();
    for (const char *part : {"view_WPSGuide", "tableView_SelectSSIDWindow", "progress_Wait"}) {
        QWidget *const dialog = controlOf(walk.main(), part)->window();
        dialog->show();
        lookAtEach(dialog, part);
        dialog->hide();
    }
    for (const QRadioButton *cell : walk.main()->findChildren<QRadioButton *>()) {
        const QString title = withoutMnemonic(cell->text());
        EXPECT_FALSE(title.contains(QRegularExpression(text("&|\\(.\\)|^$")))) << qPrintable(title);
    }
    walk.type("textField_NetworkBonjour", text("no spaces"));
    lookAtAlert();
    walk.press("button_MainSend");
    EXPECT_GT(read, 200);
    EXPECT_GT(named, 80);
}

TEST_P(Looks, EveryViewOfASendFitsOnItsFirstShowing) {
    open("Packing-Desk");  // without a password, so that the confirmation comes first
    changeMuch();
    lookAt("view_SendChangeCheck", "button_SendChangeCheckCancel");
    walk.press("button_MainCancel");
    lookAt("view_UpdateChangeCheck", "button_UpdateChangeCheckCancel");
    walk.press("button_MainNewSetting");
    setFaults("packing-desk", R"({"items": {"0x1004": {"result": 5}, "0x2001": {"result": 0},
                                            "0x1007": {"result": 9}, "0x3000": {"result": 3}}})");
    lookAtAlert();
    lookAt("view_SendConfirm", "button_SendConfirmTransmission");
    lookAt("view_SendEnd", "button_SendEndOK");
    walk.press("button_MainSend");
    walk.dialogs().on("view_SendChangeCheck", "button_SendChangeCheckNoReflect");
    walk.main()->close();
    open("Dispatch");
    walk.type("textField_NetworkPrinterName", text("Dispatch-2"));
    setFaults("dispatch", R"({"refuseConnection": true})");
    lookAtAlert();
    lookAt("view_SendConnectError", "button_SendConnectErrorOK");
    walk.press("button_MainSend");
    setFaults("dispatch", "{}");
    lookAtAlert();
    lookAt("view_SendLogin", "button_SendLoginOK");
    lookAt("view_SendLoginError", "button_SendLoginErrorOK");
    walk.dialogs().login("open123");
    lookAt("view_SendConfirm", "button_SendConfirmTransmission");
    lookAt("view_SendEnd", "button_SendEndOK");
    walk.press("button_MainSend");
}

// Over the network, with a security that the pages do not know, and with part of the answers
// missing.
TEST_P(Looks, EveryPageFitsForOddPrinters) {
    const QByteArray odd[] = {
        R"("ConnectionType": "Network", "BonjourServiceName": "odd", "Address": "10.0.0.5")",
        R"("ConnectionType": "USB", "profile": {"items": {"0x1006": "odd", "0x3102": 9,
            "0x3103": 9, "0x3000": 2}})",
        R"("ConnectionType": "USB", "profile": {"items": {"0x1006": "odd"}, "faults": {"items": {
            "0x1004": {"length": 7}, "0x2001": {"length": 7}, "0x3102": {"length": 7},
            "0x1007": {"length": 0}, "0x3201": {"length": 0}}}})"};
    int number = 0;
    for (const QByteArray &printer : odd) {
        const QByteArray json = R"({"printers": [{"DeviceURI": "virtual://odd)" +
                                QByteArray::number(++number) +
                                R"(", "ProductName": "Larkfield L200", )" + printer + "}]}";
        installLibrary(catalogueLibrary(catalogueFromJson(json, text("odd"))));
        open("odd");
        lookAtPages();
        walk.main()->close();
    }
}

// Colours of the highest contrast, and letters a quarter larger, while the windows are up.
struct LooksOfTheDesktop : Looks {};
TEST_P(LooksOfTheDesktop, AreFollowedWhileTheWindowsAreUp) {
    const QPalette usual = QApplication::palette();
    const QFont letters = QApplication::font();
    open("Packing-Desk");
    walk.type("textField_NetworkBonjour", text("no spaces"));
    QApplication::setPalette(highContrast());
    QFont large = letters;
    large.setPointSizeF(letters.pointSizeF() * 1.25);
    QApplication::setFont(large);
    walk.main()->resize(walk.main()->screen()->availableSize());
    lookAtPages([this] {
        for (const QLabel *label : walk.main()->findChildren<QLabel *>())
            if (label->isVisible() && !label->text().isEmpty()) {
                EXPECT_GT(label->palette().color(QPalette::WindowText).lightness(), 110)
                    << qPrintable(label->text()) << " is dark on black";
            }
    });
    QApplication::setPalette(usual);
    QApplication::setFont(letters);
    walk.dialogs().on("view_SendChangeCheck", "button_SendChangeCheckNoReflect");
    walk.main()->close();
}

// Of long words and of wide letters.
INSTANTIATE_TEST_SUITE_P(TwoLanguages, LooksOfTheDesktop, testing::Values(text("de"), text("ja")));

INSTANTIATE_TEST_SUITE_P(EveryLanguage, Looks, testing::ValuesIn(text(NST_LANGUAGES).split(u',')),
                         [](const auto &language) { return language.param.toStdString(); });

}  // namespace
