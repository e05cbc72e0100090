#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <cstdio>

// Says "shown" on standard output when the first window of the application has been painted.
class FirstPaint : public QObject {
  public:
    explicit FirstPaint(QObject *parent) : QObject(parent) {
        QCoreApplication::instance()->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() != QEvent::Paint || m_said) return false;
        m_said = true;
        QMetaObject::invokeMethod(
            this,
            [] {
                std::puts("shown");
                std::fflush(stdout);
            },
            Qt::QueuedConnection);
        return false;
    }

  private:
    bool m_said = false;
};
