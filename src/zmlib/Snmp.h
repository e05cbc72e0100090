#pragma once

#include <QByteArray>

// The one question of SNMP (version 1) that is asked: sysDescr.0 in the community "public".

// The request, with a number of its own.
QByteArray snmpRequest(quint32 number);

// Whether `packet` answers the request of that number, with any result. Takes any bytes.
bool isSnmpAnswer(const QByteArray &packet, quint32 number);
