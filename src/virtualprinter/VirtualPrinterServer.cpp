#include "virtualprinter/VirtualPrinterServer.h"

#include <QDeadlineTimer>
#include <QTcpSocket>
#include <QTimer>
#include <algorithm>

namespace {

// One host's connection: carries bytes between its socket and its channel. Owned by the socket.
class Connection : public QObject {
  public:
    Connection(QTcpSocket *socket, std::shared_ptr<VirtualPrinter> printer,
               std::unique_ptr<VirtualPrinter::Channel> channel)
        : QObject(socket),
          m_socket(socket),
          m_printer(std::move(printer)),
          m_channel(std::move(channel)) {
        connect(m_socket, &QTcpSocket::readyRead, this, [this] { read(); });
        read();
    }

  private:
    void read() {
        for (const auto &reply : m_channel->receive(m_socket->readAll())) send(reply);
        if (!m_channel->isOpen()) afterDelay(0, [this] { m_socket->disconnectFromHost(); });
    }

    void send(const VirtualPrinter::Reply &reply) {
        afterDelay(reply.delay, [this, bytes = reply.bytes] { m_socket->write(bytes); });
    }

    // Acts `delay` ms from now, but not before what was asked for earlier.
    template <typename Action>
    void afterDelay(int delay, Action action) {
        const QDeadlineTimer due(delay);
        if (m_last < due) m_last = due;
        const qint64 left = m_last.remainingTime();
        if (left == 0 && m_waiting == 0) return action();
        ++m_waiting;
        QTimer::singleShot(static_cast<int>(left), Qt::PreciseTimer, this, [this, action] {
            --m_waiting;
            action();
        });
    }

    QTcpSocket *const m_socket;
    const std::shared_ptr<VirtualPrinter> m_printer;  // the channel refers to it
    const std::unique_ptr<VirtualPrinter::Channel> m_channel;
    QDeadlineTimer m_last{0};
    int m_waiting = 0;
};

}  // namespace

VirtualPrinterServer::VirtualPrinterServer(std::shared_ptr<VirtualPrinter> printer, QObject *parent)
    : QObject(parent), m_printer(std::move(printer)), m_server(this) {
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *socket = m_server.nextPendingConnection()) serve(socket);
    });
}

bool VirtualPrinterServer::listen(const QHostAddress &address, quint16 port) {
    if (!m_server.listen(address, port)) return false;
    m_port = m_server.serverPort();
    if (m_printer->faults().refuseConnection) m_server.close();
    return true;
}

quint16 VirtualPrinterServer::port() const {
    return m_port;
}

QString VirtualPrinterServer::errorString() const {
    return m_server.errorString();
}

void VirtualPrinterServer::serve(QTcpSocket *socket) {
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    // A host that ends a transaction and connects anew must find its changes made.
    for (QTcpSocket *other : m_server.findChildren<QTcpSocket *>())
        while (other->state() == QAbstractSocket::ConnectedState && other->waitForReadyRead(0))
            continue;
    auto channel = m_printer->openChannel();
    if (!channel) {
        socket->abort();
        socket->deleteLater();
        return;
    }
    new Connection(socket, m_printer, std::move(channel));
}
