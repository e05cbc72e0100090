#include "platform/ui/QuitOnSignal.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <array>
#include <csignal>
#include <cstdint>

#include "platform/core/Waiting.h"

namespace {

constexpr std::array ending{SIGINT, SIGTERM, SIGHUP};

// What the handler writes to; a signal handler may do no more than that.
int noted = -1;

void note(int) {
    const uint64_t one = 1;
    [[maybe_unused]] const auto written = ::write(noted, &one, sizeof(one));
}

}  // namespace

QuitOnSignal::QuitOnSignal() {
    noted = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (noted < 0) return;  // signals end the process at once, as they do without this
    m_notifier.setSocket(noted);
    connect(&m_notifier, &QSocketNotifier::activated, this, [this] {
        m_notifier.setEnabled(false);
        endWaits();
        QCoreApplication::exit();  // without asking anybody
    });
    m_notifier.setEnabled(true);
    struct sigaction noting {};
    noting.sa_handler = note;
    for (const int signal : ending) ::sigaction(signal, &noting, nullptr);
}

QuitOnSignal::~QuitOnSignal() {
    if (noted < 0) return;
    for (const int signal : ending) std::signal(signal, SIG_DFL);
    m_notifier.setEnabled(false);
    ::close(noted);
    noted = -1;
}
