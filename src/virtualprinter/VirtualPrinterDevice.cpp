#include "virtualprinter/VirtualPrinterDevice.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <functional>
#include <system_error>

#include "virtualprinter/DelayedActions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t readArea = 4096;  // bytes

// One host's connection: carries bytes between the open device and its channel. It ends itself.
class Connection : public QObject {
  public:
    // Takes over the descriptor; `ended` is called once, after it was closed.
    Connection(int descriptor, std::shared_ptr<VirtualPrinter> printer,
               std::unique_ptr<VirtualPrinter::Channel> channel, std::function<void()> ended,
               QObject *parent)
        : QObject(parent),
          m_descriptor(descriptor),
          m_printer(std::move(printer)),
          m_channel(std::move(channel)),
          m_ended(std::move(ended)),
          m_readable(descriptor, QSocketNotifier::Read),
          m_writable(descriptor, QSocketNotifier::Write) {
        m_writable.setEnabled(false);
        connect(&m_readable, &QSocketNotifier::activated, this, [this] { read(); });
        connect(&m_writable, &QSocketNotifier::activated, this, [this] { write(); });
        connect(&m_look, &QTimer::timeout, this, [this] { read(); });
        m_look.start(VirtualPrinterDevice::lookInterval);
    }
    ~Connection() override {
        if (m_descriptor >= 0) ::close(m_descriptor);
    }

  private:
    void read() {
        std::array<char, readArea> area;
        const ssize_t count = ::read(m_descriptor, area.data(), area.size());
        if (count < 0 && isPassing()) return;
        if (count <= 0) return end();
        for (const auto &reply : m_channel->receive(QByteArray(area.data(), count)))
            m_later.after(reply.delay, [this, bytes = reply.bytes] {
                m_unsent += bytes;
                write();
            });
        if (!m_channel->isOpen()) m_later.after(0, [this] { end(); });
    }

    void write() {
        while (m_descriptor >= 0 && !m_unsent.isEmpty()) {
            const ssize_t count = ::write(m_descriptor, m_unsent.constData(),
                                          static_cast<std::size_t>(m_unsent.size()));
            if (count < 0 && !isPassing()) return end();
            if (count <= 0) return m_writable.setEnabled(true);
            m_unsent.remove(0, count);
        }
        m_writable.setEnabled(false);
    }

    // Whether the last call failed only for now.
    static bool isPassing() { return errno == EAGAIN || errno == EINTR; }

    void end() {
        if (m_descriptor < 0) return;
        m_readable.setEnabled(false);
        m_writable.setEnabled(false);
        m_look.stop();
        ::close(m_descriptor);
        m_descriptor = -1;
        m_ended();
        deleteLater();
    }

    int m_descriptor;                                 // negative once it has ended
    const std::shared_ptr<VirtualPrinter> m_printer;  // the channel refers to it
    const std::unique_ptr<VirtualPrinter::Channel> m_channel;
    const std::function<void()> m_ended;
    QSocketNotifier m_readable;
    QSocketNotifier m_writable;
    QTimer m_look;
    DelayedActions m_later;
    QByteArray m_unsent;
};

}  // namespace

VirtualPrinterDevice::VirtualPrinterDevice(std::shared_ptr<VirtualPrinter> printer,
                                           const QString &path, QObject *parent)
    : QObject(parent), m_printer(std::move(printer)), m_path(path), m_reopen(this) {
    m_reopen.setSingleShot(true);
    connect(&m_reopen, &QTimer::timeout, this, [this] {
        if (!open()) m_reopen.start(reopenInterval);
    });
}

bool VirtualPrinterDevice::open() {
    const int descriptor =
        ::open(QFile::encodeName(m_path).constData(), O_RDWR | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0) {
        m_error = QString::fromStdString(std::generic_category().message(errno));
        return false;
    }
    struct stat about {};
    const bool isDevice = ::fstat(descriptor, &about) == 0 && S_ISCHR(about.st_mode);
    auto channel = isDevice ? m_printer->openChannel() : nullptr;
    if (channel) {
        const auto ended = [this] { m_reopen.start(reopenInterval); };
        new Connection(descriptor, m_printer, std::move(channel), ended, this);
        return true;
    }
    ::close(descriptor);
    if (!isDevice) m_error = u"not a character device"_s;
    if (isDevice) m_reopen.start(reopenInterval);
    return isDevice;
}
