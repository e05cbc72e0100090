#include "zmlib/UsbTransport.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <mutex>
#include <utility>
#include <vector>

#include "platform/core/Waiting.h"
#include "zmlib/Channel.h"

namespace {

using Context = std::shared_ptr<libusb_context>;

// About so many bytes are asked for at a time: whole packets, or a long one would not fit.
constexpr int readSize = 4096;
constexpr int smallestPacket = 8;

// A transfer and its bytes, which the system may touch until it has ended.
struct Flight {
    std::unique_ptr<libusb_transfer, decltype(&libusb_free_transfer)> transfer{
        libusb_alloc_transfer(0), libusb_free_transfer};
    QByteArray bytes;
    int ended = 0;
};

// Keeps a transfer that the system does not give back, until the end of the process.
void keepForEver(std::unique_ptr<Flight> flight) {
    static std::mutex mutex;
    static auto *const kept = new std::vector<std::unique_ptr<Flight>>;
    const std::lock_guard lock(mutex);
    kept->push_back(std::move(flight));
}

// One bulk transfer at a time, waited for in slices. Another thread may notice its end.
class Transfer {
  public:
    Transfer(Context context, libusb_device_handle *device, quint8 endpoint)
        : m_context(std::move(context)), m_device(device), m_endpoint(endpoint) {}
    ~Transfer() { cancel(); }
    Transfer(const Transfer &) = delete;
    Transfer &operator=(const Transfer &) = delete;

    // Hands bytes to the device, or room for bytes from it.
    bool start(QByteArray bytes) {
        if (m_isBroken) return false;
        Flight &flight = *m_flight;
        flight.bytes = std::move(bytes);
        flight.ended = 0;
        libusb_fill_bulk_transfer(
            flight.transfer.get(), m_device, m_endpoint,
            reinterpret_cast<unsigned char *>(flight.bytes.data()),
            static_cast<int>(flight.bytes.size()),
            [](libusb_transfer *t) { std::atomic_ref(*static_cast<int *>(t->user_data)).store(1); },
            &flight.ended, 0);
        m_running = libusb_submit_transfer(flight.transfer.get()) == LIBUSB_SUCCESS;
        return m_running;
    }

    // Has it ended? Looks once at least, whatever the deadline. False: not in time.
    bool wait(const QDeadlineTimer &deadline) {
        look(std::chrono::milliseconds(0));
        const auto pause = [this](std::chrono::milliseconds slice) { look(slice); };
        const bool ended = waitUntil([this] { return hasEnded() || m_isBroken; }, deadline, pause);
        m_running = !ended || m_isBroken;
        return ended;
    }

    // Ends it, with or without its bytes.
    void cancel() {
        if (!m_running) return;
        libusb_cancel_transfer(m_flight->transfer.get());
        while (!hasEnded() && !m_isBroken) look(waitSlice);
        if (!hasEnded()) keepForEver(std::exchange(m_flight, std::make_unique<Flight>()));
        m_running = false;
    }

    bool isRunning() const { return m_running; }
    const char *data() const { return m_flight->bytes.constData(); }
    int moved() const { return m_isBroken ? 0 : m_flight->transfer->actual_length; }
    bool isComplete() const {
        return !m_isBroken && m_flight->transfer->status == LIBUSB_TRANSFER_COMPLETED;
    }

    // A stalled endpoint is made usable again.
    void clearStall() {
        if (m_flight->transfer->status == LIBUSB_TRANSFER_STALL)
            libusb_clear_halt(m_device, m_endpoint);
    }

  private:
    bool hasEnded() { return std::atomic_ref(m_flight->ended).load() != 0; }

    // A system that cannot say what has ended will not say it later either.
    void look(std::chrono::milliseconds time) {
        timeval slice{0, static_cast<suseconds_t>(time.count() * 1000)};
        if (hasEnded() || m_isBroken) return;
        const int result =
            libusb_handle_events_timeout_completed(m_context.get(), &slice, &m_flight->ended);
        m_isBroken = result != LIBUSB_SUCCESS && result != LIBUSB_ERROR_INTERRUPTED;
    }

    const Context m_context;
    libusb_device_handle *const m_device;
    const quint8 m_endpoint;
    std::unique_ptr<Flight> m_flight = std::make_unique<Flight>();
    bool m_running = false;
    bool m_isBroken = false;
};

// An opened device with one claimed interface.
class ClaimedInterface {
  public:
    ClaimedInterface(Context context, libusb_device_handle *handle, int number)
        : m_context(std::move(context)), m_handle(handle), m_number(number) {}
    ~ClaimedInterface() {
        libusb_release_interface(m_handle, m_number);
        libusb_close(m_handle);
    }
    ClaimedInterface(const ClaimedInterface &) = delete;
    ClaimedInterface &operator=(const ClaimedInterface &) = delete;

    libusb_device_handle *handle() const { return m_handle; }
    const Context &context() const { return m_context; }

  private:
    const Context m_context;
    libusb_device_handle *const m_handle;
    const int m_number;
};

// A read is always under way, so that nothing is lost and a pulled cable is noticed.
class UsbTransport : public Transport {
  public:
    UsbTransport(std::unique_ptr<ClaimedInterface> claimed, const UsbPrinter &printer)
        : m_claimed(std::move(claimed)),
          m_readSize(readSize - readSize % std::max(printer.packetSize, smallestPacket)),
          m_in(m_claimed->context(), m_claimed->handle(), printer.in),
          m_out(m_claimed->context(), m_claimed->handle(), printer.out) {}

    // The kernel's driver takes the printer back, and asks it.
    bool endsSlowly() const override { return true; }

  private:
    Completion transmit(const QDeadlineTimer &deadline) override {
        if (!m_out.start(m_unsent)) return Completion::Closed;
        const bool ended = m_out.wait(deadline);
        m_out.cancel();
        m_unsent.remove(0, m_out.moved());
        if (m_unsent.isEmpty()) return Completion::Done;
        if (!ended) return Completion::TimedOut;
        m_out.clearStall();
        return Completion::Closed;
    }

    bool startReading() { return m_in.isRunning() || m_in.start(QByteArray(m_readSize, '\0')); }

    // Waits for bytes. After an empty packet it pauses, or it would keep the processor busy.
    Completion receive(const QDeadlineTimer &deadline) override {
        for (std::chrono::milliseconds pause{1};; pause = std::min(2 * pause, waitSlice)) {
            if (!startReading()) return Completion::Closed;
            if (!m_in.wait(deadline)) return Completion::TimedOut;
            if (!m_in.isComplete()) {
                m_in.clearStall();
                return Completion::Closed;
            }
            if (m_in.moved() > 0) break;
            if (deadline.hasExpired() || isWaitCancelled()) return Completion::TimedOut;
            waitUntil([] { return false; }, std::min(deadline, QDeadlineTimer(pause)));
        }
        m_received.append(m_in.data(), m_in.moved());
        startReading();
        return Completion::Done;
    }

    const std::unique_ptr<ClaimedInterface> m_claimed;
    const int m_readSize;  // bytes
    Transfer m_in;
    Transfer m_out;
};

// Whether another program uses the kernel's file; it would lose the printer without a word.
bool isUsedThroughKernel(const UsbPrinter &printer) {
    const QString file = kernelPrinterFile(printer);
    if (file.isEmpty()) return false;
    const int descriptor =
        ::open(QFile::encodeName(file).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    if (descriptor >= 0) ::close(descriptor);
    return descriptor < 0 && errno == EBUSY;
}

int resultOfError(int error) {
    if (error == LIBUSB_ERROR_ACCESS) return ZMLib::NoPermission;
    return error == LIBUSB_ERROR_BUSY ? ZMLib::InUse : ZMLib::UnknownPrinter;
}

// Claims the interface; one that is busy for a moment only is asked for again.
int claim(libusb_device_handle *handle, const UsbPrinter &printer, const QDeadlineTimer &deadline) {
    libusb_set_auto_detach_kernel_driver(handle, 1);
    int error = LIBUSB_ERROR_BUSY;
    for (int i = 0; i < claimTries && error == LIBUSB_ERROR_BUSY; ++i) {
        if (i > 0) waitUntil([] { return false; }, std::min(deadline, QDeadlineTimer(claimPause)));
        error = libusb_claim_interface(handle, printer.interface);
    }
    return error;
}

}  // namespace

Opened openUsbTransport(std::shared_ptr<libusb_context> context, const UsbPrinter &printer,
                        const QDeadlineTimer &deadline) {
    if (isUsedThroughKernel(printer)) return {nullptr, ZMLib::InUse};
    libusb_device_handle *handle = nullptr;
    if (const int error = libusb_open(printer.device.get(), &handle); error != LIBUSB_SUCCESS)
        return {nullptr, resultOfError(error)};
    if (const int error = claim(handle, printer, deadline); error != LIBUSB_SUCCESS) {
        libusb_close(handle);
        return {nullptr, resultOfError(error)};
    }
    auto claimed =
        std::make_unique<ClaimedInterface>(std::move(context), handle, printer.interface);
    if (printer.alternate != 0 &&
        libusb_set_interface_alt_setting(handle, printer.interface, printer.alternate) !=
            LIBUSB_SUCCESS)
        return {};
    auto transport = std::make_unique<UsbTransport>(std::move(claimed), printer);
    // A printer cannot see that a host has left: the end frame drops what that host staged, the
    // rest what it left to be read. A reset would also drop settings that were not read yet. A try
    // that finds a stalled endpoint clears it.
    const QDeadlineTimer drained = std::min(deadline, QDeadlineTimer(drainWithin));
    auto completion = Transport::Completion::Closed;
    for (int tries = 0; tries < 3 && completion == Transport::Completion::Closed; ++tries) {
        completion = transport->write(queryEnd, deadline);
        if (completion == Transport::Completion::Done)
            completion = transport->drain(leftOverSilence, drained);
    }
    if (completion != Transport::Completion::Done) return {};
    return {std::move(transport)};
}
