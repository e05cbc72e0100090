#pragma once

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <memory>

#include "virtualprinter/VirtualPrinter.h"

// The virtual printer of a description in JSON text.
inline std::shared_ptr<VirtualPrinter> printerOf(const QByteArray &json) {
    const auto document = QJsonDocument::fromJson(json);
    EXPECT_TRUE(document.isObject()) << json.constData();
    const auto result = profileFromJson(document.object());
    EXPECT_TRUE(result.profile) << qPrintable(result.error);
    return std::make_shared<VirtualPrinter>(result.profile.value_or(Profile{}));
}

// The faults of a description in JSON text.
inline SimulatedFaults faultsOf(const QByteArray &json) {
    return printerOf("{\"faults\": " + json + "}")->faults();
}

inline QByteArray hex(const char *digits) {
    return QByteArray::fromHex(digits);
}
