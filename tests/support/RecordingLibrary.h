#pragma once

#include <QStringList>

#include "zmlib/ZMLib.h"

// A library that notes every call, a check of an address with its arguments, and answers what it
// is told to.
class RecordingLibrary : public ZMLib {
  public:
    using Commands = QList<QByteArray>;
    QStringList calls;
    int status = 1;
    int result = 0;
    QByteArray reply;

    std::optional<QList<PrinterEntry>> ZMCreatePrinterURI() override { return {}; }
    int ZMGetEngageStatusSub(const QString &, int) override {
        note(QStringLiteral("status"));
        return status;
    }
    int ZMStartCommand(const QString &, const Commands &, int, int) override {
        return note(QStringLiteral("start"));
    }
    int ZMEngageConnectAndStartCommand(const QString &, const Commands &, int, int) override {
        return note(QStringLiteral("engage"));
    }
    int ZMEndCommandAndEngageDisConnect(const QString &, const Commands &, int, int) override {
        return note(QStringLiteral("end"));
    }
    int ZMGetSettingData(const QString &, int, const QByteArray &, QByteArray &buffer,
                         const Commands &, int) override {
        buffer += reply;
        return note(QStringLiteral("get"));
    }
    int ZMSendSettingData(const QString &, int, const QByteArray &, QByteArray &, const Commands &,
                          int) override {
        return note(QStringLiteral("send"));
    }
    int ZMIOOpenForUDP(const QString &target, const QString &address, int length,
                       int timeout) override {
        return note(QStringLiteral("%1 %2 %3 %4").arg(target, address).arg(length).arg(timeout));
    }

  private:
    int note(const QString &call) {
        calls << call;
        return result;
    }
};
