#include "platform/ui/Modal.h"

#include <QEventLoop>
#include <QPointer>
#include <QWidget>
#include <algorithm>
#include <vector>

namespace {

struct Run {
    explicit Run(const QWidget *w) : window(w) {}
    const QWidget *const window;
    QEventLoop loop;
    int outcome = Modal::stoppedOutcome;
    bool stopped = false;
};

// The runs, outermost first. Stopped ones stay until their action has finished.
std::vector<Run *> &runs() {
    static std::vector<Run *> list;
    return list;
}

}  // namespace

int Modal::run(QWidget *window) {
    Run current(window);
    runs().push_back(&current);
    const QPointer<QWidget> shown(window);
    QObject::connect(window, &QObject::destroyed, &current.loop, &QEventLoop::quit);
    window->hide();  // modality changes only while a window is hidden
    window->setWindowModality(Qt::ApplicationModal);
    window->setEnabled(true);  // its parent may be inert
    window->show();
    window->raise();
    window->activateWindow();
    if (!current.stopped) current.loop.exec();
    if (!current.stopped && shown) shown->hide();
    std::erase(runs(), &current);
    return current.outcome;
}

void Modal::stop(QWidget *window, int outcome) {
    const auto runsNow = [window](const Run *run) {
        return run->window == window && !run->stopped;
    };
    const auto found = std::find_if(runs().rbegin(), runs().rend(), runsNow);
    if (found != runs().rend()) {
        (*found)->outcome = outcome;
        (*found)->stopped = true;
        (*found)->loop.quit();
    }
    window->hide();
}
