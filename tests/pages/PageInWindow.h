#pragma once

#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QTimer>

#include "pages/DWTBaseView.h"
#include "platform/core/Texts.h"
#include "support/DataManagers.h"
#include "support/DialogScript.h"

// A page in a window, filled from a virtual printer that was read.
template <typename Page>
class PageInWindow : public testing::Test {
  protected:
    explicit PageInWindow(const QByteArray &profile)
        : m(profile, OnePrinterLibrary::Transport::Virtual) {
        static const bool texts = installTexts();
        EXPECT_TRUE(texts);
        page = make<Page>();
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
    Widget *control(const char *name) {
        auto *found = window.findChild<Widget *>(QLatin1String(name));
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
    CategoryDictionary changed() { return *m.manager->setupDataFromChangeData(page->viewKey()); }

    ServedManager m;
    QWidget window;
    std::shared_ptr<Page> page;
    std::vector<NotificationCenter::Observer> observers;
    QString state;  // the send state posted last
};
