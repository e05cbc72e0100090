#pragma once

#include <QDeadlineTimer>
#include <chrono>
#include <memory>

#include "zmlib/PrinterSource.h"
#include "zmlib/UsbDevices.h"

// Silence after which another host's leftovers count as drained.
inline constexpr std::chrono::milliseconds leftOverSilence{20};
// How often, and how far apart, an interface that another program has is asked for.
inline constexpr int claimTries = 5;
inline constexpr std::chrono::milliseconds claimPause{20};

// Opens a printer: takes its interface from the kernel's driver until the end, sends an end frame
// and drains leftovers. `result`: ZMLib::NoPermission, InUse, or UnknownPrinter, also for a printer
// that takes no frame or does not stop to send. `context` is the device's.
Opened openUsbTransport(std::shared_ptr<libusb_context> context, const UsbPrinter &printer,
                        const QDeadlineTimer &deadline);
