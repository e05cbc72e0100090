// Whether arbitrary bytes are an answer to an SNMP request, the number of which is their first
// four.

#include <QtEndian>

#include "zmlib/Snmp.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size < 4) return 0;
    const quint32 number = qFromBigEndian<quint32>(data) & 0x7FFFFFFF;
    const QByteArray packet(reinterpret_cast<const char *>(data) + 4,
                            static_cast<qsizetype>(size - 4));
    if (isSnmpAnswer(packet, number) && isSnmpAnswer(packet, number ^ 1)) __builtin_trap();
    return 0;
}
