#pragma once

#include <QStringList>

#include "zmlib/ZMLib.h"

// A library that notes every call as one line of text and answers what it is told to.
class RecordingLibrary : public ZMLib {
  public:
    QStringList calls;
    std::optional<QList<PrinterEntry>> list;
    int status = 1;
    int result = 0;
    QByteArray reply;

    std::optional<QList<PrinterEntry>> ZMCreatePrinterURI() override {
        calls << QStringLiteral("ZMCreatePrinterURI");
        return list;
    }
    int ZMGetEngageStatusSub(const QString &uri, int timeout) override {
        calls << QStringLiteral("ZMGetEngageStatusSub %1 %2").arg(uri).arg(timeout);
        return status;
    }
    int ZMStartCommand(const QString &uri, const QList<QByteArray> &commands, int statusLength,
                       int timeout) override {
        return note(QStringLiteral("ZMStartCommand"), uri, commands, statusLength, timeout);
    }
    int ZMEngageConnectAndStartCommand(const QString &uri, const QList<QByteArray> &commands,
                                       int statusLength, int timeout) override {
        return note(QStringLiteral("ZMEngageConnectAndStartCommand"), uri, commands, statusLength,
                    timeout);
    }
    int ZMEndCommandAndEngageDisConnect(const QString &uri, const QList<QByteArray> &commands,
                                        int statusLength, int timeout) override {
        return note(QStringLiteral("ZMEndCommandAndEngageDisConnect"), uri, commands, statusLength,
                    timeout);
    }
    int ZMGetSettingData(const QString &uri, int replySize, const QByteArray &request,
                         QByteArray &buffer, const QList<QByteArray> &commands,
                         int timeout) override {
        return noteData(QStringLiteral("ZMGetSettingData"), uri, replySize, request, buffer,
                        commands, timeout);
    }
    int ZMSendSettingData(const QString &uri, int frameSize, const QByteArray &frame,
                          QByteArray &buffer, const QList<QByteArray> &commands,
                          int timeout) override {
        return noteData(QStringLiteral("ZMSendSettingData"), uri, frameSize, frame, buffer,
                        commands, timeout);
    }
    int ZMIOOpenForUDP(const QString &target, const QString &address, int statusLength,
                       int timeout) override {
        calls << QStringLiteral("ZMIOOpenForUDP %1 %2 %3 %4")
                     .arg(target, address)
                     .arg(statusLength)
                     .arg(timeout);
        return result;
    }

  private:
    static QString text(const QList<QByteArray> &commands) {
        return QString::fromLatin1(commands.join('/'));
    }
    int note(const QString &function, const QString &uri, const QList<QByteArray> &commands,
             int statusLength, int timeout) {
        calls << QStringLiteral("%1 %2 %3 %4 %5")
                     .arg(function, uri, text(commands))
                     .arg(statusLength)
                     .arg(timeout);
        return result;
    }
    int noteData(const QString &function, const QString &uri, int size, const QByteArray &data,
                 QByteArray &buffer, const QList<QByteArray> &commands, int timeout) {
        calls << QStringLiteral("%1 %2 %3 %4 [%5] %6 %7")
                     .arg(function, uri)
                     .arg(size)
                     .arg(QString::fromLatin1(data), QString::fromLatin1(buffer), text(commands))
                     .arg(timeout);
        buffer += reply;
        return result;
    }
};
