#pragma once

#include <QAbstractSocket>
#include <QDeadlineTimer>
#include <QHostAddress>
#include <utility>

// A socket that never blocks and is closed with its object. Sockets are used directly, since a wait
// has to be interrupted every few milliseconds on whatever thread it runs, and a QTcpSocket gives
// up a connection whose wait is interrupted.
class Socket {
  public:
    // For IPv6 addresses, or for IPv4 ones; `type` is SOCK_STREAM or SOCK_DGRAM. fd() is negative
    // when the system gives none.
    Socket(QAbstractSocket::NetworkLayerProtocol protocol, int type);
    ~Socket();
    Socket(Socket &&other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    Socket(const Socket &) = delete;
    Socket &operator=(const Socket &) = delete;
    Socket &operator=(Socket &&) = delete;

    int fd() const { return m_fd; }

    // Begins to connect to an address, of the socket's kind and with a scope where it needs one.
    // False when that has failed already.
    bool startConnecting(const QHostAddress &address, quint16 port) const;

    // What became of a connection that was begun, once the socket can be written: 0 when it is
    // there, otherwise an errno.
    int connectionError() const;

    // Waits until the socket can be read or written (POLLIN, POLLOUT); false after the deadline.
    bool waitFor(short events, const QDeadlineTimer &deadline) const;

  private:
    int m_fd;
};
