#include <deque>
#include <utility>

#include "platform/core/Waiting.h"
#include "virtualprinter/VirtualPrinter.h"
#include "zmlib/Transport.h"

namespace {

class VirtualTransport : public Transport {
  public:
    VirtualTransport(std::shared_ptr<VirtualPrinter> printer,
                     std::unique_ptr<VirtualPrinter::Channel> channel)
        : m_printer(std::move(printer)), m_channel(std::move(channel)) {}

    std::chrono::milliseconds noticeOfEnd() const override { return {}; }

  private:
    Completion transmit(const QDeadlineTimer &) override {
        if (!m_channel->isOpen()) return Completion::Closed;
        for (const auto &reply : m_channel->receive(std::exchange(m_unsent, {})))
            m_replies.push_back({reply.bytes, QDeadlineTimer(reply.delay)});
        return Completion::Done;
    }

    Completion receive(const QDeadlineTimer &deadline) override {
        if (m_replies.empty() && !m_channel->isOpen()) return Completion::Closed;
        const auto arrived = [&] {
            return !m_replies.empty() && m_replies.front().due.hasExpired();
        };
        if (!waitUntil(arrived, deadline)) return Completion::TimedOut;
        m_received += m_replies.front().bytes;
        m_replies.pop_front();
        return Completion::Done;
    }

    struct Pending {
        QByteArray bytes;
        QDeadlineTimer due;
    };

    const std::shared_ptr<VirtualPrinter> m_printer;  // the channel refers to it
    const std::unique_ptr<VirtualPrinter::Channel> m_channel;
    std::deque<Pending> m_replies;
};

}  // namespace

std::unique_ptr<Transport> openVirtualTransport(std::shared_ptr<VirtualPrinter> printer) {
    auto channel = printer->openChannel();
    if (!channel) return nullptr;
    return std::make_unique<VirtualTransport>(std::move(printer), std::move(channel));
}
