#pragma once

#include <QEventLoop>
#include <future>
#include <memory>
#include <thread>

#include "virtualprinter/VirtualPrinterServer.h"

// Serves a virtual printer on a free loopback port, on a thread of its own: a standard one, since
// the thread sanitizer cannot see what Debian's Qt does to synchronize its own.
class PrinterServerThread {
  public:
    explicit PrinterServerThread(const std::shared_ptr<VirtualPrinter> &printer,
                                 const QHostAddress &address = QHostAddress::LocalHost,
                                 quint16 port = 0) {
        std::promise<void> listening;
        m_thread = std::thread([this, printer, address, port, &listening] {
            VirtualPrinterServer server(printer);
            QEventLoop loop;
            if (server.listen(address, port)) m_port = server.port();
            m_loop = &loop;
            listening.set_value();
            loop.exec();
        });
        listening.get_future().wait();
    }
    ~PrinterServerThread() {
        QMetaObject::invokeMethod(m_loop, &QEventLoop::quit, Qt::QueuedConnection);
        m_thread.join();
    }

    quint16 port() const { return m_port; }
    QString uri() const { return QStringLiteral("tcp://127.0.0.1:%1").arg(m_port); }

  private:
    std::thread m_thread;
    QEventLoop *m_loop = nullptr;
    quint16 m_port = 0;
};
