#pragma once

#include <unistd.h>

#include <QFile>

// Resident memory of the process in KiB.
inline double residentKiB() {
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) return 0;
    return file.readAll().split(' ')[1].toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) /
           1024;
}
