#pragma once

#include <QTest>
#include <array>

#include "support/OnePrinterLibrary.h"
#include "support/Profiles.h"

// Tests that run over every transport; where there is no USB (the thread sanitizer's run), not over
// that one.
class EveryTransport : public testing::TestWithParam<OnePrinterLibrary::Transport> {
  protected:
    using Transport = OnePrinterLibrary::Transport;
    void SetUp() override {
        if (GetParam() != Transport::Usb) return;
        const UsbBed bed;
        if (!UsbBed::isThere()) GTEST_SKIP();
    }
};

inline const auto allTransports =
    testing::Values(OnePrinterLibrary::Transport::Virtual, OnePrinterLibrary::Transport::Tcp,
                    OnePrinterLibrary::Transport::Usb);

inline std::string nameOf(const testing::TestParamInfo<OnePrinterLibrary::Transport> &info) {
    return std::array{"Virtual", "Tcp", "Usb"}[static_cast<size_t>(info.param)];
}
