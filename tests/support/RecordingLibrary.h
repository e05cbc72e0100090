#pragma once

#include <QStringList>

#include "zmlib/ZMLib.h"

// A library that notes every call as one line of text and answers what it is told to.
class RecordingLibrary : public ZMLib {
  public:
    using Commands = QList<QByteArray>;
    QStringList calls;
    std::optional<QList<PrinterEntry>> list;
    int status = 1;
    int result = 0;
    QByteArray reply;

    std::optional<QList<PrinterEntry>> ZMCreatePrinterURI() override { return list; }
    int ZMGetEngageStatusSub(const QString &uri, int timeout) override {
        note("ZMGetEngageStatusSub", uri, {}, timeout);
        return status;
    }
    int ZMStartCommand(const QString &uri, const Commands &c, int length, int timeout) override {
        return note("ZMStartCommand", uri, c, length, timeout);
    }
    int ZMEngageConnectAndStartCommand(const QString &uri, const Commands &c, int length,
                                       int timeout) override {
        return note("ZMEngageConnectAndStartCommand", uri, c, length, timeout);
    }
    int ZMEndCommandAndEngageDisConnect(const QString &uri, const Commands &c, int length,
                                        int timeout) override {
        return note("ZMEndCommandAndEngageDisConnect", uri, c, length, timeout);
    }
    int ZMGetSettingData(const QString &uri, int size, const QByteArray &request,
                         QByteArray &buffer, const Commands &c, int timeout) override {
        buffer += reply;
        return note("ZMGetSettingData", uri, c + Commands{request}, size, timeout);
    }
    int ZMSendSettingData(const QString &uri, int size, const QByteArray &frame, QByteArray &buffer,
                          const Commands &c, int timeout) override {
        buffer += reply;
        return note("ZMSendSettingData", uri, c + Commands{frame}, size, timeout);
    }
    int ZMIOOpenForUDP(const QString &target, const QString &address, int length,
                       int timeout) override {
        return note("ZMIOOpenForUDP", target, {address.toLatin1()}, length, timeout);
    }

  private:
    template <typename... Numbers>
    int note(const char *function, const QString &uri, const Commands &bytes, Numbers... numbers) {
        QStringList line{QLatin1String(function), uri};
        if (!bytes.isEmpty()) line << QString::fromLatin1(bytes.join('/'));
        (line << ... << QString::number(numbers));
        calls << line.join(u' ');
        return result;
    }
};
