#pragma once

#include <array>

#include "cli/ExitCode.h"
#include "platform/core/NotificationCenter.h"
#include "settings/SettingKeys.h"
#include "support/Profiles.h"

// How a change of a printer with the password "open123" ends, whichever program makes it.
struct EndingCase {
    const char *wanted;  // "names.bonjour=desk"
    const char *ending;  // how far it came, then the wanted settings and those not verified
    ExitCode code;       // of the command line
    const char *said;    // among other words
    // What goes wrong in the send, when it is read again, and from the beginning.
    QByteArray inSend = {}, afterSend = {}, faults = {};
    const char *password = "open123";  // that is given
};

inline QList<EndingCase> endingCases() {
    using enum ExitCode;
    const char *const name = "names.bonjour=desk", *const key = "accessPoint.key=office-key",
                      *const set = "password.administrator=new-1",
                      *const remove = "password.administrator=",
                      *const done = "and has the new settings", *const away = "cannot be reached",
                      *const refused = "not accept the password";
    const auto item = [](const char *code, const char *fault) {
        return QByteArray(R"({"items": {"%1": {%2}}})").replace("%1", code).replace("%2", fault);
    };
    const auto silent = [&](const char *code) { return item(code, R"("noReply": true)"); };
    const auto kept = [&](const char *code) { return item(code, R"("result": 0)"); };
    const QByteArray gone = R"({"refuseConnection": true})";
    const QByteArray neither = item("0x1004", R"("noReply": true, "result": 0)");
    const QByteArray foreign = item("0x1004", R"("code": "0x7777")");
    return {
        {name, "Sent: names.bonjour=Verified", Done, done},
        {name, "Sent: names.bonjour=Verified", Done, done, silent("0x1004")},
        {name, "Sent: names.bonjour=Differs", NotAccepted, "read back as label-", kept("0x1004")},
        {name, "Sent: names.bonjour=Differs", NotAccepted, "read back as label-", neither},
        {name, "Sent: names.bonjour=Unclear", NotAccepted, "not clear", neither, foreign},
        {name, "Sent: names.bonjour=Refused", NotAccepted, "not accept",
         item("0x1004", R"("result": 5)")},
        {name, "Sent, unread: names.bonjour=Accepted", NotReached, "not verified", {}, gone},
        {name, "Lost:", NotReached, "was lost", item("0x1007", R"("closeAfterReply": true)")},
        {name, "NotReached:", NotReached, away, gone},
        {name, "Login NotReached:", NotReached, away, {}, {}, silent("0x1000")},
        {name, "Login NoReply:", NotReached, away, {}, {}, silent("0x1001")},
        {name, "Login Refused:", LoginRefused, refused, {}, {}, {}, "other"},
        {name, "Login Refused:", LoginRefused, refused, {}, {}, item("0x1001", R"("result": 4)")},
        {name, "Login Missing:", LoginRefused, "none was given", {}, {}, {}, ""},
        {set, "Sent: password.administrator=Verified", Done, done},
        {set, "Sent: password.administrator=Differs", NotAccepted, "not read", kept("0x1003")},
        {set, "Sent: password.administrator=Accepted", Done, "compared", {}, silent("0x1001")},
        {remove, "Sent: password.administrator=Verified", Done, done},
        {remove, "Sent: password.administrator=Differs", NotAccepted, "not read", kept("0x1003")},
        {remove, "Sent: password.administrator=Accepted", Done, "compared", {}, silent("0x1000")},
        {key, "Sent: accessPoint.key=Verified", Done, done},
        {key, "Sent: accessPoint.key=Differs", NotAccepted, "not read back", kept("0x3202")},
        // This key is never reported.
        {"wireless.key=office-key", "Sent: wireless.key=Accepted", Done, "compared: wireless.key"},
    };
}

// Lets go wrong in a send, and after it, what the case says, as long as the result lives.
inline auto faultsOfSend(VirtualPrinter &printer, const EndingCase &c) {
    const auto at = [&](const QString &message, const QByteArray &faults) {
        return NotificationCenter::shared().observe(message, [&](const Notification &) {
            printer.setFaults(faultsOf(faults.isEmpty() ? "{}" : faults));
        });
    };
    if (!c.faults.isEmpty()) printer.setFaults(faultsOf(c.faults));
    return std::array{at(DWT_DataSend_Start_Message, c.inSend),
                      at(DWT_DataSend_Stop_Message, c.afterSend)};
}
