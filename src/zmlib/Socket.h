#pragma once

#include <QAbstractSocket>
#include <QDeadlineTimer>
#include <QHostAddress>
#include <utility>

// A non-blocking socket, closed with its object. QTcpSocket gives up a connection whose wait is
// interrupted, as every few milliseconds here.
class Socket {
  public:
    // `type`: SOCK_STREAM or SOCK_DGRAM. fd() is negative when the system gives none.
    Socket(QAbstractSocket::NetworkLayerProtocol protocol, int type);
    ~Socket();
    Socket(Socket &&other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    Socket(const Socket &) = delete;
    Socket &operator=(const Socket &) = delete;
    Socket &operator=(Socket &&) = delete;

    int fd() const { return m_fd; }

    // Begins to connect to an address of its kind. False when that failed at once.
    bool startConnecting(const QHostAddress &address, quint16 port) const;

    // The errno of a begun connection, once the socket is writable; 0 when it is there.
    int connectionError() const;

    // Waits until the socket can be read or written (POLLIN, POLLOUT); false after the deadline.
    bool waitFor(short events, const QDeadlineTimer &deadline) const;

  private:
    int m_fd;
};
