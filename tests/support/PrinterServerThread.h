#pragma once

#include <QThread>

#include "virtualprinter/VirtualPrinterServer.h"

// Serves a virtual printer on a free loopback port, on a thread of its own.
class PrinterServerThread {
  public:
    explicit PrinterServerThread(const std::shared_ptr<VirtualPrinter> &printer)
        : m_server(new VirtualPrinterServer(printer)) {
        m_server->moveToThread(&m_thread);
        m_thread.start();
        const auto listen = [this] { m_server->listen(QHostAddress::LocalHost, 0); };
        QMetaObject::invokeMethod(m_server, listen, Qt::BlockingQueuedConnection);
        m_uri = QStringLiteral("tcp://127.0.0.1:%1").arg(m_server->port());
    }
    ~PrinterServerThread() {
        m_server->deleteLater();
        m_thread.quit();
        m_thread.wait();
    }

    QString uri() const { return m_uri; }

  private:
    QThread m_thread;
    VirtualPrinterServer *m_server;
    QString m_uri;
};
