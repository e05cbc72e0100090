#pragma once

#include "pages/DWTEthernetView.h"
#include "pages/DWTFirmwareView.h"
#include "pages/DWTInfrastructureView.h"
#include "pages/DWTNetworkView.h"
#include "pages/DWTPasswordView.h"
#include "pages/DWTSimpleAPView.h"
#include "pages/DWTWirelessView.h"
#include "platform/core/NotificationCenter.h"
#include "platform/core/Texts.h"
#include "platform/ui/FieldNote.h"
#include "support/DataManagers.h"
#include "support/DialogScript.h"

// Makes a page, for tables of pages.
template <typename Page>
std::shared_ptr<DWTBaseView> a() {
    return make<Page>();
}

// A page in a window, filled from a virtual printer that was read.
class PageInWindow {
  public:
    PageInWindow(const std::shared_ptr<DWTBaseView> &page, const QByteArray &items)
        : m("{\"items\": {" + items + "}}"), view(page) {
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
    template <typename Widget = TextField>
    Widget *control(QAnyStringView name) {
        auto *found = window.findChild<Widget *>(name.toString());
        EXPECT_TRUE(found) << qPrintable(name.toString());
        return found;
    }
    // What stands below a field.
    static FieldNote &noteOf(const QWidget *field) {
        return *field->parentWidget()->findChild<FieldNote *>();
    }
    // The button beside a field that puts back what was read.
    static QToolButton &resetOf(const QWidget *field) {
        return *field->parentWidget()->findChild<QToolButton *>({}, Qt::FindDirectChildrenOnly);
    }
    QString shown(const char *name) { return control<QLineEdit>(name)->text(); }
    void pick(const char *cell) { control<QRadioButton>(cell)->click(); }
    // Replaces a field's text by a pasted one.
    void type(const char *field, const QString &typed) { type(control(field), typed); }
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
            EXPECT_EQ(withoutMnemonic(box->buttons().value(0)->text()), text("OK"));
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            explanation = box->informativeText();
            style = box->icon();
            QTest::keyClick(box, Qt::Key_Return);
        });
        watch.start(1);
        EXPECT_EQ(view->itemInputCheck(), expected);
        return alerts;
    }
    CategoryDictionary changed() { return *m.manager->setupDataFromChangeData(view->viewKey()); }
    // The value of a setting in the change data: "3", "10.0.0.5", "'text'".
    QString stored(const QString &name) {
        return std::visit(ValueText(), changed().value(settingOf(name)->key));
    }
    QString stored(const char *name) { return stored(text(name)); }
    QString changeList() {
        QStringList list;
        const SettingRecord shown{{view->viewKey(), view->shownCategory()}};
        for (const Plan::Change &change : planOf(m.manager->savedData(), shown).changes)
            list << QStringLiteral("%1: %2 > %3")
                        .arg(change.setting->label(), change.oldText, change.newText);
        return list.join(u'|');
    }
    // The page forgets its printer and shows nothing but defaults.
    void showNothing() {
        view->dataManagerObject(make<DWTDataManager>());
        view->showDataManager();
    }

    ServedManager m;
    const std::shared_ptr<DWTBaseView> view;
    QWidget window;
    std::vector<NotificationCenter::Observer> observers;
    QString state;        // the send state posted last
    QString explanation;  // of the last alert
    QMessageBox::Icon style = QMessageBox::NoIcon;
};

// The tests of one page, filled from the items (JSON without braces).
template <typename Page>
class PageTest : public testing::Test, protected PageInWindow {
  protected:
    explicit PageTest(const QByteArray &items) : PageInWindow(make<Page>(), items) {}

    const std::shared_ptr<Page> page = std::dynamic_pointer_cast<Page>(view);
};
