#include "cli/Look.h"

#include <QTimer>

#include "platform/core/Waiting.h"
#include "settings/Printers.h"

Look::Look() : m_printers(Printers::supported()) {}

QList<PrinterEntry> Look::printers() const {
    QList<PrinterEntry> printers;
    for (const PrinterEntry &entry : m_printers) printers << m_names.named(entry);
    return printers;
}

bool Look::isComplete() {
    if (Printers::hasListChanged()) m_printers = Printers::supported();
    m_names.ask(m_printers);
    return !m_names.isAsking() && Printers::isListComplete();
}

bool Look::wait(const QDeadlineTimer &deadline, const std::function<bool()> &isEnough) {
    const auto pause = [this](std::chrono::milliseconds slice) {
        QTimer::singleShot(slice, &m_loop, &QEventLoop::quit);
        m_loop.exec();
    };
    return waitUntil([&] { return isComplete() || isEnough(); }, deadline, pause);
}
