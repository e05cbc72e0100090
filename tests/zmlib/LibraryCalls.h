#pragma once

#include "support/Catalogues.h"

// The frames that start, update and end a transaction.
inline const QList<QByteArray> commands{hex("1b7b045501567d"), hex("1b7b0377777d"),
                                        hex("1b7b045500557d")};
inline const QByteArray readName = hex("1b7b056606107c7d");
inline const QByteArray nameAB = hex("43463b08003b06103b41423b4a");  // its reply
inline constexpr int limit = 15000;  // ms; the libraries of the tests give up earlier

// The calls of a library about one of its printers.
class LibraryCalls {
  protected:
    virtual ~LibraryCalls() = default;
    virtual ZMLib &library() = 0;

    int status() { return library().ZMGetEngageStatusSub(uri, limit); }
    int engage() { return library().ZMEngageConnectAndStartCommand(uri, commands, 20, limit); }
    int finish() { return library().ZMEndCommandAndEngageDisConnect(uri, commands, 20, limit); }
    // Reads the name; what came is in `reply`.
    int get(int area = ZMLib::replyArea) {
        reply.clear();
        return library().ZMGetSettingData(uri, area, readName, reply, commands, limit);
    }
    int check(const QString &target, const char *address) {
        return library().ZMIOOpenForUDP(target, QLatin1String(address), 20, limit);
    }

    QString uri;
    QByteArray reply;
};
