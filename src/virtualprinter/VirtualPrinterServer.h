#pragma once

#include <QHostAddress>
#include <QObject>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>
#include <memory>

#include "virtualprinter/VirtualPrinter.h"

// Serves a virtual printer on a TCP port, to several hosts at a time. Lives on one thread, which
// must run an event loop.
class VirtualPrinterServer : public QObject {
  public:
    explicit VirtualPrinterServer(std::shared_ptr<VirtualPrinter> printer,
                                  QObject *parent = nullptr);

    // Begins to listen; port 0 takes a free one. A printer whose faults refuse connections does not
    // listen on the port, but keeps it, so that nobody else answers there. False with the reason in
    // errorString().
    bool listen(const QHostAddress &address, quint16 port);
    quint16 port() const;
    QString errorString() const;

  private:
    void serve(QTcpSocket *socket);

    const std::shared_ptr<VirtualPrinter> m_printer;
    QTcpServer m_server;
    QTcpSocket m_refusing;  // bound in the server's place
};
