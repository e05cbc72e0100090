#pragma once

#include <QTest>
#include <QtWidgets>
#include <functional>
#include <list>

#include "platform/ui/Modal.h"

// Told when something does not go as it is written down; every program that uses a script defines
// it: a test fails, another program ends.
void scriptFailed(const QString &what);

inline QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

// Finds a control by its name, visible or not.
template <typename Widget = QWidget>
Widget *controlOf(QWidget *window, const char *name) {
    auto *found = window->findChild<Widget *>(QLatin1String(name));
    if (!found) scriptFailed(text("no control ") + text(name));
    return found;
}

// Clicks a button.
inline void press(QWidget *window, const char *button) {
    QTest::mouseClick(controlOf(window, button), Qt::LeftButton);
}

// Replaces the text of a field with the keyboard.
inline void typeInto(QLineEdit *field, const QString &typed) {
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClicks(field, typed);
}

// Does something in the wait window that is up, at every turn until it says that it has done it.
class DuringWait {
  public:
    using Act = std::function<bool(QWidget *wait)>;

    explicit DuringWait(const Act &act) {
        m_look.callOnTimeout([this, act] {
            for (QWidget *window : QApplication::topLevelWidgets())
                if (window->isVisible() && window->objectName() == QLatin1String("window_Wait") &&
                    act(window))
                    return m_look.stop();
        });
        m_look.start(2);
    }
    ~DuringWait() {
        if (m_look.isActive()) scriptFailed(text("it never came while waiting"));
    }

  private:
    QTimer m_look;
};

// Answers the modal windows that come up, in the order written down, as a user does. A step waits
// until its view (or an alert) is up; a window that stays unanswered for too long is a failure.
class DialogScript : public QObject {
  public:
    using Answer = std::function<void(QWidget *window)>;

    DialogScript() { watch(); }
    ~DialogScript() override {
        if (!isDone()) scriptFailed(text("never came up: ") + m_steps.front().view);
    }

    // When the view is shown: does what is told, then clicks the button when one is named.
    DialogScript &on(const char *view, const Answer &act, const char *button = nullptr) {
        m_steps.push_back({text(view), [=](QWidget *window) {
                               if (act) act(window);
                               if (button) press(window, button);
                           }});
        return *this;
    }
    DialogScript &on(const char *view, const char *button) { return on(view, nullptr, button); }
    // When a label of the view has come to say a part of a text: does what is told.
    DialogScript &said(const char *view, const char *label, const char *part, const Answer &act) {
        on(view, act);
        m_steps.back().label = text(label);
        m_steps.back().part = text(part);
        return *this;
    }
    DialogScript &said(const char *view, const char *label, const char *part, const char *button) {
        return said(view, label, part, [button](QWidget *window) { press(window, button); });
    }
    // Types into a field of the view, then clicks the button.
    DialogScript &type(const char *view, const char *field, const char *typed, const char *button) {
        const auto types = [=](QWidget *window) {
            typeInto(controlOf<QLineEdit>(window, field), text(typed));
        };
        return on(view, types, button);
    }
    // Types the password of a send and goes on.
    DialogScript &login(const char *password) {
        return type("view_SendLogin", "textField_Password", password, "button_SendLoginOK");
    }
    // Confirms a send, after what is told, and leaves its end.
    DialogScript &confirmAndEnd(const Answer &act = nullptr) {
        return on("view_SendConfirm", act, "button_SendConfirmTransmission")
            .on("view_SendEnd", "button_SendEndOK");
    }
    // Presses a key in the view.
    DialogScript &key(const char *view, Qt::Key key) {
        return on(view, [key](QWidget *window) { QTest::keyClick(window, key); });
    }
    // Dismisses an alert whose message has this text.
    DialogScript &alert(const char *message) {
        return on("", [message](QWidget *window) {
            const QString shown = static_cast<QMessageBox *>(window)->text();
            if (shown != text(message)) scriptFailed(text("another alert: ") + shown);
            QTest::keyClick(window, Qt::Key_Return);
        });
    }
    bool isDone() const { return m_steps.empty(); }

  private:
    struct Step {
        QString view;  // empty: an alert
        Answer answer;
        QString label = {}, part = {};
    };
    static constexpr int longestWait = 10000;

    // A timer anew for every look: one that is being handled does not fire in a nested run.
    void watch() {
        QTimer::singleShot(2, this, [this] {
            watch();
            look();
        });
    }
    void look() {
        QWidget *const window = QApplication::activeModalWidget();
        if (!window || window->windowModality() != Qt::ApplicationModal) {
            m_unanswered.invalidate();
            return;
        }
        if (!m_unanswered.isValid()) m_unanswered.start();
        if (!m_steps.empty() && isUp(window, m_steps.front())) {
            const Answer answer = m_steps.front().answer;
            m_steps.pop_front();
            m_unanswered.invalidate();
            answer(window);
        } else if (m_unanswered.hasExpired(longestWait)) {
            const auto *alert = qobject_cast<QMessageBox *>(window);
            scriptFailed(text("unanswered: %1 while waiting for %2")
                             .arg(alert ? alert->text() : window->objectName(),
                                  isDone() ? text("nothing") : m_steps.front().view));
            m_steps.clear();
            Modal::stop(window);
            window->hide();
        }
    }
    static bool isUp(QWidget *window, const Step &step) {
        if (step.view.isEmpty()) return qobject_cast<QMessageBox *>(window);
        const auto *shown = window->findChild<QWidget *>(step.view);
        if (!shown || !shown->isVisible() || step.label.isEmpty())
            return shown && shown->isVisible();
        return window->findChild<QLabel *>(step.label)->text().contains(step.part);
    }

    QElapsedTimer m_unanswered;
    std::list<Step> m_steps;
};
