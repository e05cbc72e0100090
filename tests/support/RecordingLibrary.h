#pragma once

#include <QStringList>

#include "zmlib/ZMLib.h"

// A library that notes every call as one line of text and answers what it is told to.
class RecordingLibrary : public ZMLib {
    using Commands = QList<QByteArray>;

  public:
    QStringList calls;
    std::optional<QList<PrinterEntry>> list;
    int status = 1;
    int result = 0;
    QByteArray reply;

    std::optional<QList<PrinterEntry>> ZMCreatePrinterURI() override {
        note("ZMCreatePrinterURI");
        return list;
    }
    int ZMGetEngageStatusSub(const QString &uri, int timeout) override {
        note("ZMGetEngageStatusSub", uri, timeout);
        return status;
    }
    int ZMStartCommand(const QString &uri, const Commands &commands, int statusLength,
                       int timeout) override {
        return note("ZMStartCommand", uri, commands, statusLength, timeout);
    }
    int ZMEngageConnectAndStartCommand(const QString &uri, const Commands &commands,
                                       int statusLength, int timeout) override {
        return note("ZMEngageConnectAndStartCommand", uri, commands, statusLength, timeout);
    }
    int ZMEndCommandAndEngageDisConnect(const QString &uri, const Commands &commands,
                                        int statusLength, int timeout) override {
        return note("ZMEndCommandAndEngageDisConnect", uri, commands, statusLength, timeout);
    }
    int ZMGetSettingData(const QString &uri, int replySize, const QByteArray &request,
                         QByteArray &buffer, const Commands &commands, int timeout) override {
        note("ZMGetSettingData", uri, replySize, request, '[' + buffer + ']', commands, timeout);
        buffer += reply;
        return result;
    }
    int ZMSendSettingData(const QString &uri, int frameSize, const QByteArray &frame,
                          QByteArray &buffer, const Commands &commands, int timeout) override {
        note("ZMSendSettingData", uri, frameSize, frame, '[' + buffer + ']', commands, timeout);
        buffer += reply;
        return result;
    }
    int ZMIOOpenForUDP(const QString &target, const QString &address, int statusLength,
                       int timeout) override {
        return note("ZMIOOpenForUDP", target, address, statusLength, timeout);
    }

  private:
    static QString shown(const QString &argument) { return argument; }
    static QString shown(int argument) { return QString::number(argument); }
    static QString shown(const QByteArray &argument) { return QString::fromLatin1(argument); }
    static QString shown(const Commands &argument) { return shown(argument.join('/')); }

    template <typename... Arguments>
    int note(const char *function, const Arguments &...arguments) {
        calls << QStringList{shown(QByteArray(function)), shown(arguments)...}.join(u' ');
        return result;
    }
};
