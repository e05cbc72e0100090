#include <benchmark/benchmark.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <array>
#include <future>
#include <thread>

#include "Printers.h"
#include "link/DWTCommunicationControl.h"
#include "settings/Frames.h"

namespace {

std::shared_ptr<DWTCommunicationControl> connected(const PrinterEntry &entry) {
    auto link = DWTCommunicationControl::communicationControl(entry);
    link->setStartSetting(Frames::startFrame());
    link->setEndSetting(Frames::endFrame());
    link->setUpdateSetting(Frames::updateFrame());
    link->setCommandSettingToArray();
    if (link->connectPrinter(0) != 0) qFatal("the printer could not be connected");
    return link;
}

// One request and its reply through link, library and printer.
void request(benchmark::State &state, bool tcp) {
    const BenchPrinter bench(tcp);
    const auto link = connected(bench.entry);
    const QByteArray frame = Frames::requestFrame(0x1006);
    for (auto _ : state)
        if (!link->selectPrinterInfomation(frame)) state.SkipWithError("no reply");
    link->disconnectPrinter(0);
}
BENCHMARK_CAPTURE(request, in_process, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(request, loopback_tcp, true)->Unit(benchmark::kMicrosecond)->UseRealTime();

// What the machine itself takes for 8 bytes there and 24 back between two threads with blocking
// sockets: nothing over loopback can be faster.
void loopbackFloor(benchmark::State &state) {
    const int listener = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto *const address = reinterpret_cast<sockaddr *>(&name);
    socklen_t size = sizeof name;
    const bool listening = ::bind(listener, address, size) == 0 && ::listen(listener, 1) == 0 &&
                           ::getsockname(listener, address, &size) == 0;
    const int near = ::socket(AF_INET, SOCK_STREAM, 0);
    if (!listening || ::connect(near, address, size) != 0) qFatal("no loopback");
    std::array<char, 24> bytes{};
    std::thread peer([far = ::accept(listener, nullptr, nullptr)] {
        std::array<char, 24> echo{};
        while (::recv(far, echo.data(), 8, MSG_WAITALL) == 8) ::send(far, echo.data(), 24, 0);
        ::close(far);
    });
    const int on = 1;
    ::setsockopt(near, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    for (auto _ : state) {
        ::send(near, bytes.data(), 8, 0);
        ::recv(near, bytes.data(), 24, MSG_WAITALL);
    }
    ::close(near);
    peer.join();
    ::close(listener);
}
BENCHMARK(loopbackFloor)->Unit(benchmark::kMicrosecond)->UseRealTime();

// A peer that answers every request with a reply of 512 bytes.
class LongReplyPeer {
  public:
    LongReplyPeer() {
        std::promise<quint16> listening;
        auto port = listening.get_future();
        m_thread.reset(QThread::create([&listening] { serve(listening); }));
        m_thread->start();
        m_port = port.get();
    }
    ~LongReplyPeer() {
        while (!m_thread->wait(10)) m_thread->quit();
    }
    QString uri() const { return QStringLiteral("tcp://127.0.0.1:%1").arg(m_port); }

  private:
    static void serve(std::promise<quint16> &listening) {
        QByteArray reply(512, 'x');
        reply.replace(0, 5, QByteArray("CF;\xfb\x01", 5));  // 507 bytes after the header
        QTcpServer server;
        QObject::connect(&server, &QTcpServer::newConnection, [&] {
            QTcpSocket *const socket = server.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, [socket, reply] {
                if (socket->readAll().contains("\x1b{\x05")) socket->write(reply);
            });
        });
        server.listen(QHostAddress::LocalHost);
        listening.set_value(server.serverPort());
        QEventLoop().exec();
    }

    std::unique_ptr<QThread> m_thread;
    quint16 m_port = 0;
};

// Replies as long as the reply area; the counter says by how much the process grew.
void longReplies(benchmark::State &state) {
    const LongReplyPeer peer;
    Catalogue catalogue;
    catalogue.entries = {{{QStringLiteral("DeviceURI"), peer.uri()}}};
    installLibrary(catalogueLibrary(catalogue));
    {
        const auto link = connected(catalogue.entries.first());
        const QByteArray frame = Frames::requestFrame(0x1006);
        for (int i = 0; i < 2000; ++i) link->selectPrinterInfomation(frame);
        const double before = residentKiB();
        for (auto _ : state)
            if (link->selectPrinterInfomation(frame).value_or(QByteArray()).size() != 512)
                state.SkipWithError("no reply of 512 bytes");
        state.counters["grown_KiB"] = residentKiB() - before;
        link->disconnectPrinter(0);
    }
    installLibrary(nullptr);
}
BENCHMARK(longReplies)->Unit(benchmark::kMicrosecond)->UseRealTime()->Iterations(100000);

}  // namespace

int main(int argc, char **argv) {
    const QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
