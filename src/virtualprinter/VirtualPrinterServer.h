#pragma once

#include <QHostAddress>
#include <QObject>
#include <QString>
#include <QTcpServer>
#include <memory>

#include "virtualprinter/VirtualPrinter.h"

// Serves a virtual printer on a TCP port, to several hosts at a time. Lives on one thread, which
// must run an event loop.
class VirtualPrinterServer : public QObject {
  public:
    explicit VirtualPrinterServer(std::shared_ptr<VirtualPrinter> printer,
                                  QObject *parent = nullptr);

    // Begins to listen; port 0 takes a free one. A printer whose faults refuse connections only
    // picks the port and does not listen on it. False with the reason in errorString().
    bool listen(const QHostAddress &address, quint16 port);
    quint16 port() const;
    QString errorString() const;

  private:
    void serve(QTcpSocket *socket);

    const std::shared_ptr<VirtualPrinter> m_printer;
    QTcpServer m_server;
    quint16 m_port = 0;
};
