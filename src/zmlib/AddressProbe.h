#pragma once

#include <QDeadlineTimer>
#include <QHostAddress>
#include <chrono>

// Whether a machine answers at an address of the network.

// False for what no single machine has: "any address", multicast, broadcast and reserved ones.
bool isOfOneMachine(const QHostAddress &address);

// The ports that printers listen on.
struct ProbePorts {
    quint16 snmp = 161;   // over UDP
    quint16 data = 9100;  // raw printing, over TCP
};

// Longest time that silence is waited for, and the time after which the question is asked again.
inline constexpr std::chrono::milliseconds longestSilence{4000};
inline constexpr std::chrono::milliseconds askAgain{500};

// Asks by SNMP and connects at once. True at the first success; false when both are refused, after
// longestSilence, at the deadline, or for an address that is not of one machine.
bool answersAtAddress(const QHostAddress &address, const QDeadlineTimer &deadline,
                      ProbePorts ports = {});
