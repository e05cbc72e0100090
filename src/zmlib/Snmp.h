#pragma once

#include <QByteArray>

// The one question of the Simple Network Management Protocol (version 1) that the library asks:
// what a device calls itself (sysDescr.0, in the community "public").

// The request, with a number of its own.
QByteArray snmpRequest(quint32 number);

// Whether `packet` is an answer to the request of that number, with whatever result. Takes any
// bytes.
bool isSnmpAnswer(const QByteArray &packet, quint32 number);
