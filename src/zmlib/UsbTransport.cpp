#include "zmlib/UsbTransport.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <vector>

#include "platform/core/Waiting.h"
#include "zmlib/Replies.h"
#include "zmlib/Transport.h"

namespace {

using Context = std::shared_ptr<libusb_context>;

// About so many bytes are asked for at a time: whole packets, or a long one would not fit.
constexpr int readSize = 4096;
constexpr int smallestPacket = 8;

// One bulk transfer, waited for in slices. Another thread may notice its end.
class Transfer {
  public:
    Transfer(Context context, libusb_device_handle *device, quint8 endpoint)
        : m_context(std::move(context)),
          m_device(device),
          m_endpoint(endpoint),
          m_transfer(libusb_alloc_transfer(0), libusb_free_transfer) {}
    ~Transfer() { cancel(); }
    Transfer(const Transfer &) = delete;
    Transfer &operator=(const Transfer &) = delete;

    // Hands `size` bytes at `data` to the device; they must stay until the transfer has ended.
    bool start(char *data, int size) {
        m_ended = 0;
        libusb_fill_bulk_transfer(
            m_transfer.get(), m_device, m_endpoint, reinterpret_cast<unsigned char *>(data), size,
            [](libusb_transfer *t) { std::atomic_ref(*static_cast<int *>(t->user_data)).store(1); },
            &m_ended, 0);
        m_running = libusb_submit_transfer(m_transfer.get()) == LIBUSB_SUCCESS;
        return m_running;
    }

    // Has the bytes moved? Looks once at least, whatever the deadline. False: not in time.
    bool wait(const QDeadlineTimer &deadline) {
        look(std::chrono::milliseconds(0));
        const auto pause = [this](std::chrono::milliseconds slice) { look(slice); };
        const bool ended = waitUntil([this] { return hasEnded(); }, deadline, pause);
        m_running = !ended;
        return ended;
    }

    // Ends it, with or without its bytes: the device may not touch them any more afterwards.
    void cancel() {
        if (!m_running) return;
        libusb_cancel_transfer(m_transfer.get());
        while (!hasEnded()) look(waitSlice);
        m_running = false;
    }

    bool isRunning() const { return m_running; }
    int moved() const { return m_transfer->actual_length; }
    libusb_transfer_status status() const { return m_transfer->status; }

    // A stalled endpoint is made usable again.
    void clearStall() {
        if (status() == LIBUSB_TRANSFER_STALL) libusb_clear_halt(m_device, m_endpoint);
    }

  private:
    bool hasEnded() { return std::atomic_ref(m_ended).load() != 0; }

    void look(std::chrono::milliseconds time) {
        timeval slice{0, static_cast<suseconds_t>(time.count() * 1000)};
        if (!hasEnded()) libusb_handle_events_timeout_completed(m_context.get(), &slice, &m_ended);
    }

    const Context m_context;
    libusb_device_handle *const m_device;
    const quint8 m_endpoint;
    const std::unique_ptr<libusb_transfer, decltype(&libusb_free_transfer)> m_transfer;
    int m_ended = 0;
    bool m_running = false;
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
          m_in(m_claimed->context(), m_claimed->handle(), printer.in),
          m_out(m_claimed->context(), m_claimed->handle(), printer.out) {
        const int packet = std::max(printer.packetSize, smallestPacket);
        m_buffer.resize(static_cast<size_t>(readSize - readSize % packet));
    }

    Completion write(const QByteArray &bytes, const QDeadlineTimer &deadline) override {
        QByteArray sent = bytes;
        if (!m_out.start(sent.data(), static_cast<int>(sent.size()))) return Completion::Closed;
        if (!m_out.wait(deadline)) {
            m_out.cancel();
            if (m_out.moved() != sent.size()) return Completion::TimedOut;
        }
        if (m_out.moved() == sent.size()) return Completion::Done;
        m_out.clearStall();
        return Completion::Closed;
    }

    Completion dropArrived(std::chrono::milliseconds notice) override {
        Completion completion = Completion::Done;
        qsizetype dropped = 0;
        while (completion == Completion::Done && dropped <= skippedBytes) {
            dropped += m_received.size();
            m_received.clear();
            completion = receive(QDeadlineTimer(notice));
        }
        m_received.clear();
        return completion == Completion::Closed ? Completion::Closed : Completion::Done;
    }

  private:
    bool startReading() {
        return m_in.isRunning() || m_in.start(m_buffer.data(), static_cast<int>(m_buffer.size()));
    }

    // Waits for bytes. After an empty packet it pauses, or it would keep the processor busy.
    Completion receive(const QDeadlineTimer &deadline) override {
        for (std::chrono::milliseconds pause{1};; pause = std::min(2 * pause, waitSlice)) {
            if (!startReading()) return Completion::Closed;
            if (!m_in.wait(deadline)) return Completion::TimedOut;
            if (m_in.status() != LIBUSB_TRANSFER_COMPLETED) {
                m_in.clearStall();
                return Completion::Closed;
            }
            if (m_in.moved() > 0) break;
            if (deadline.hasExpired() || isWaitCancelled()) return Completion::TimedOut;
            waitUntil([] { return false; }, std::min(deadline, QDeadlineTimer(pause)));
        }
        m_received.append(m_buffer.data(), m_in.moved());
        startReading();
        return Completion::Done;
    }

    const std::unique_ptr<ClaimedInterface> m_claimed;
    std::vector<char> m_buffer;
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
    // A reset would also drop settings that were not read yet. The first try clears a stall.
    for (int tries = 0; tries < 2; ++tries)
        if (transport->dropArrived(leftOverSilence) == Transport::Completion::Done)
            return {std::move(transport)};
    return {};
}
