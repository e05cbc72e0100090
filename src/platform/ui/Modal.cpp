#include "platform/ui/Modal.h"

#include <QEventLoop>
#include <QPointer>
#include <QWidget>
#include <algorithm>
#include <vector>

namespace {

struct Run {
    QEventLoop loop;
    int outcome = Modal::stoppedOutcome;
    bool stopped = false;
};

// The runs, outermost first. Stopped ones stay until their action has finished.
std::vector<Run *> &runs() {
    static std::vector<Run *> list;
    return list;
}

Run *innermost() {
    const auto found =
        std::find_if(runs().rbegin(), runs().rend(), [](const Run *run) { return !run->stopped; });
    return found == runs().rend() ? nullptr : *found;
}

}  // namespace

int Modal::run(QWidget *window) {
    Run current;
    runs().push_back(&current);
    const QPointer<QWidget> shown(window);
    QObject::connect(window, &QObject::destroyed, &current.loop, &QEventLoop::quit);
    window->hide();  // modality changes only while a window is hidden
    window->setWindowModality(Qt::ApplicationModal);
    window->show();
    window->raise();
    window->activateWindow();
    if (!current.stopped) current.loop.exec();
    if (!current.stopped && shown) shown->hide();
    std::erase(runs(), &current);
    return current.outcome;
}

void Modal::stop(int outcome) {
    Run *const current = innermost();
    if (!current) return;
    current->outcome = outcome;
    current->stopped = true;
    current->loop.quit();
}

bool Modal::isRunning() {
    return innermost() != nullptr;
}
