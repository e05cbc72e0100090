#pragma once

#include "support/Catalogues.h"

// The frames that start, update and end a transaction.
inline const QList<QByteArray> commands{hex("1b7b045501567d"), hex("1b7b0377777d"),
                                        hex("1b7b045500557d")};
inline const QByteArray readName = hex("1b7b056606107c7d");
inline const QByteArray writeAB = hex("43463b09003b06103b4142003b4a");
inline const QByteArray nameAB = hex("43463b08003b06103b41423b4a");  // its reply
inline constexpr int limit = 15000;  // ms; longer than anything takes

// The calls of a library about one of its printers.
class LibraryCalls {
  protected:
    virtual ~LibraryCalls() = default;
    virtual ZMLib &library() = 0;

    int status() { return library().ZMGetEngageStatusSub(uri, limit); }
    int engage() { return library().ZMEngageConnectAndStartCommand(uri, commands, 20, limit); }
    int finish() { return library().ZMEndCommandAndEngageDisConnect(uri, commands, 20, limit); }
    // Reads the name; what came is in `reply`.
    int get(int area = ZMLib::replyArea, int timeout = limit) {
        reply.clear();
        return library().ZMGetSettingData(uri, area, readName, reply, commands, timeout);
    }
    int check(const QString &target, const char *address) {
        return library().ZMIOOpenForUDP(target, QLatin1String(address), 20, limit);
    }
    // The list: the values of an entry in a line each, then the problems.
    QString listed() {
        QStringList lines;
        const auto list = library().ZMCreatePrinterURI().value_or(QList<PrinterEntry>());
        for (PrinterEntry entry : list) {
            entry.remove(PrinterKey::Plug);
            lines << QStringList(entry.values()).join(u'|');
        }
        return (lines + problems()).join(u'\n');
    }
    // The problems, as the number of the kind and the subject.
    QStringList problems() {
        QStringList lines;
        for (const PrinterProblem &problem : library().problems())
            lines << QString::number(problem.kind) + problem.subject;
        return lines;
    }

    QString uri;
    QByteArray reply;
};
