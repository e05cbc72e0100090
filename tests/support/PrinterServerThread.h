#pragma once

#include <QEventLoop>
#include <QThread>
#include <future>
#include <memory>

#include "virtualprinter/VirtualPrinterServer.h"

// Serves a virtual printer on a free loopback port, on a thread of its own.
class PrinterServerThread {
  public:
    explicit PrinterServerThread(const std::shared_ptr<VirtualPrinter> &printer) {
        std::promise<quint16> listening;
        auto port = listening.get_future();
        m_thread.reset(QThread::create([printer, &listening] {
            VirtualPrinterServer server(printer);
            QEventLoop loop;
            const bool ok = server.listen(QHostAddress::LocalHost, 0);
            listening.set_value(ok ? server.port() : quint16{0});
            loop.exec();
        }));
        m_thread->start();
        m_port = port.get();
    }
    ~PrinterServerThread() {
        while (!m_thread->wait(10)) m_thread->quit();
    }

    QString uri() const { return QStringLiteral("tcp://127.0.0.1:%1").arg(m_port); }

  private:
    std::unique_ptr<QThread> m_thread;
    quint16 m_port = 0;
};
