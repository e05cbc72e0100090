#include "virtualprinter/VirtualPrinterServer.h"

#include <sys/socket.h>

#include <QNetworkProxy>

#include "virtualprinter/DelayedActions.h"

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
        if (!m_channel->isOpen()) m_later.after(0, [this] { close(); });
    }

    void send(const VirtualPrinter::Reply &reply) {
        m_later.after(reply.delay, [this, bytes = reply.bytes] {
            m_socket->write(bytes);
            m_socket->flush();
        });
    }

    void close() {
        if (!m_channel->isReset()) return m_socket->disconnectFromHost();
        const linger dropAll{1, 0};
        ::setsockopt(static_cast<int>(m_socket->socketDescriptor()), SOL_SOCKET, SO_LINGER,
                     &dropAll, sizeof dropAll);
        m_socket->abort();
    }

    QTcpSocket *const m_socket;
    const std::shared_ptr<VirtualPrinter> m_printer;  // the channel refers to it
    const std::unique_ptr<VirtualPrinter::Channel> m_channel;
    DelayedActions m_later;
};

}  // namespace

VirtualPrinterServer::VirtualPrinterServer(std::shared_ptr<VirtualPrinter> printer, QObject *parent)
    : QObject(parent), m_printer(std::move(printer)), m_server(this), m_refusing(this) {
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *socket = m_server.nextPendingConnection()) serve(socket);
    });
}

bool VirtualPrinterServer::listen(const QHostAddress &address, quint16 port) {
    // Looking for a proxy would take the system's own threads.
    m_server.setProxy(QNetworkProxy::NoProxy);
    m_refusing.setProxy(QNetworkProxy::NoProxy);
    if (m_printer->faults().refuseConnection)
        return m_refusing.bind(address, port, QTcpSocket::ReuseAddressHint);
    return m_server.listen(address, port);
}

quint16 VirtualPrinterServer::port() const {
    return m_server.isListening() ? m_server.serverPort() : m_refusing.localPort();
}

QString VirtualPrinterServer::errorString() const {
    const bool isRefusing = m_refusing.error() != QTcpSocket::UnknownSocketError;
    return isRefusing ? m_refusing.errorString() : m_server.errorString();
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
