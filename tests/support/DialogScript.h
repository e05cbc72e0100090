#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>
#include <list>

#include "platform/ui/Modal.h"

inline QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

// Finds a control by its name, visible or not.
template <typename Widget = QWidget>
Widget *controlOf(QWidget *window, const char *name) {
    auto *found = window->findChild<Widget *>(QLatin1String(name));
    EXPECT_TRUE(found) << name;
    return found;
}

// Answers the modal windows that come up, in the order written down, as a user does. A step waits
// until its view (or an alert) is up; a window that stays unanswered for too long fails the test.
class DialogScript : public QObject {
  public:
    using Answer = std::function<void(QWidget *window)>;

    DialogScript() { watch(); }
    ~DialogScript() override { EXPECT_TRUE(isDone()) << qPrintable(m_steps.front().view); }

    // When the view is shown: clicks the button, or does what is told.
    DialogScript &on(const char *view, const char *button) {
        return on(view, [button](QWidget *window) {
            QTest::mouseClick(controlOf(window, button), Qt::LeftButton);
        });
    }
    DialogScript &on(const char *view, const Answer &answer) {
        m_steps.push_back({text(view), answer});
        return *this;
    }
    // Types into a field of the view, then clicks the button.
    DialogScript &type(const char *view, const char *field, const char *typed, const char *button) {
        return on(view, [=](QWidget *window) {
            auto *line = controlOf<QLineEdit>(window, field);
            line->selectAll();
            QTest::keyClicks(line, text(typed));
            QTest::mouseClick(controlOf(window, button), Qt::LeftButton);
        });
    }
    // Presses a key in the view.
    DialogScript &key(const char *view, Qt::Key key) {
        return on(view, [key](QWidget *window) { QTest::keyClick(window, key); });
    }
    // Dismisses an alert whose message has this text.
    DialogScript &alert(const char *message) {
        return on("", [message](QWidget *window) {
            EXPECT_EQ(static_cast<QMessageBox *>(window)->text(), text(message));
            QTest::keyClick(window, Qt::Key_Return);
        });
    }
    bool isDone() const { return m_steps.empty(); }

  private:
    struct Step {
        QString view;  // empty: an alert
        Answer answer;
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
        if (!m_steps.empty() && isUp(window, m_steps.front().view)) {
            const Answer answer = m_steps.front().answer;
            m_steps.pop_front();
            m_unanswered.invalidate();
            answer(window);
        } else if (m_unanswered.hasExpired(longestWait)) {
            ADD_FAILURE() << "unanswered: " << qPrintable(window->objectName())
                          << " while waiting for "
                          << (isDone() ? "nothing" : qPrintable(m_steps.front().view));
            m_steps.clear();
            Modal::stop(window);
            window->hide();
        }
    }
    static bool isUp(QWidget *window, const QString &view) {
        if (view.isEmpty()) return qobject_cast<QMessageBox *>(window);
        const auto *shown = window->findChild<QWidget *>(view);
        return shown && shown->isVisible();
    }

    QElapsedTimer m_unanswered;
    std::list<Step> m_steps;
};
