#include "platform/ui/Modal.h"

#include <QApplication>
#include <QEventLoop>
#include <QPointer>
#include <algorithm>
#include <vector>

namespace {

struct Run {
    QEventLoop loop;
    int outcome = Modal::stoppedOutcome;
    bool stopped = false;
};

// Outermost first. Each entry lives on the stack of its run().
std::vector<Run *> &runs() {
    static std::vector<Run *> list;
    return list;
}

Run *innermostRunning() {
    const auto &list = runs();
    const auto it =
        std::find_if(list.rbegin(), list.rend(), [](const Run *run) { return !run->stopped; });
    return it == list.rend() ? nullptr : *it;
}

void end(Run &run, int outcome) {
    run.outcome = outcome;
    run.stopped = true;
    run.loop.quit();
}

void showModally(QWidget *window) {
    // The modality of a window that is already up takes effect when it is shown anew.
    if (window->windowModality() != Qt::ApplicationModal) {
        window->hide();
        window->setWindowModality(Qt::ApplicationModal);
    }
    window->show();
    window->raise();
    window->activateWindow();
}

}  // namespace

int Modal::run(QWidget *window) {
    const QPointer<QWidget> guarded = window;
    const QPointer<QWidget> previous = QApplication::activeWindow();
    Run run;
    QObject::connect(window, &QObject::destroyed, &run.loop, [&run] {
        if (!run.stopped) end(run, stoppedOutcome);
    });
    runs().push_back(&run);
    showModally(window);
    run.loop.exec();
    runs().erase(std::find(runs().begin(), runs().end(), &run));

    if (!run.stopped && guarded) guarded->hide();
    if (previous && previous->isVisible() && !QApplication::activeWindow())
        previous->activateWindow();
    return run.outcome;
}

void Modal::stop(int outcome) {
    if (Run *run = innermostRunning()) end(*run, outcome);
}

bool Modal::isRunning() {
    return innermostRunning() != nullptr;
}
