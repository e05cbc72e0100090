#pragma once

#include <QHostAddress>
#include <QObject>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>
#include <memory>

#include "virtualprinter/VirtualPrinter.h"

// Serves a virtual printer on a TCP port, on one thread with an event loop.
class VirtualPrinterServer : public QObject {
  public:
    explicit VirtualPrinterServer(std::shared_ptr<VirtualPrinter> printer,
                                  QObject *parent = nullptr);

    // Listens; port 0 takes a free one. A printer that refuses connections keeps the port without
    // listening. False, with an errorString(), on failure.
    bool listen(const QHostAddress &address, quint16 port);
    quint16 port() const;
    QString errorString() const;

  private:
    void serve(QTcpSocket *socket);

    const std::shared_ptr<VirtualPrinter> m_printer;
    QTcpServer m_server;
    QTcpSocket m_refusing;  // bound in the server's place
};
