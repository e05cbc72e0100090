#include "cli/Interrupt.h"

#include <atomic>
#include <csignal>

namespace {

std::atomic<bool> requested{false};
static_assert(std::atomic<bool>::is_always_lock_free);  // a signal handler writes it

}  // namespace

void Interrupt::watch() {
    struct sigaction noting {};
    noting.sa_handler = [](int) { requested = true; };
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) ::sigaction(signal, &noting, nullptr);
}

void Interrupt::ignoreLostReaders() {
    struct sigaction ignoring {};
    ignoring.sa_handler = SIG_IGN;
    for (const int signal : {SIGPIPE, SIGXFSZ}) ::sigaction(signal, &ignoring, nullptr);
}

bool Interrupt::isRequested() {
    return requested;
}
