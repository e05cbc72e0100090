#pragma once

#include <QDeadlineTimer>
#include <QHostAddress>
#include <chrono>

// Whether a machine answers at an address of the network.

// The ports that printers listen on.
struct ProbePorts {
    quint16 snmp = 161;   // over UDP
    quint16 data = 9100;  // raw printing, over TCP
};

// Longest time that silence is waited for, and the time after which the question is asked again.
inline constexpr std::chrono::milliseconds longestSilence{4000};
inline constexpr std::chrono::milliseconds askAgain{500};

// Asks by SNMP and tries to connect, both at once. True at the first SNMP answer or as soon as the
// connection is there; false at once when both are refused or cannot be reached, otherwise after
// longestSilence or at the deadline, and for what is no address of one machine.
bool answersAtAddress(const QHostAddress &address, const QDeadlineTimer &deadline,
                      ProbePorts ports = {});
