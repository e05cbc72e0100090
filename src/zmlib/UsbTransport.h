#pragma once

#include <QDeadlineTimer>
#include <chrono>
#include <memory>

#include "zmlib/PrinterSource.h"
#include "zmlib/UsbDevices.h"

// So long a printer must send nothing before what was left over from another host counts as gone.
inline constexpr std::chrono::milliseconds leftOverSilence{20};
// How often, and how far apart, an interface that another program has is asked for.
inline constexpr int claimTries = 5;
inline constexpr std::chrono::milliseconds claimPause{20};

// Opens a printer: takes its interface from the kernel's driver until the end, and drains
// leftovers. `result`: ZMLib::NoPermission, InUse or UnknownPrinter. `context` is the device's.
Opened openUsbTransport(std::shared_ptr<libusb_context> context, const UsbPrinter &printer,
                        const QDeadlineTimer &deadline);
