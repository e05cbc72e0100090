#pragma once

#include <array>

#include "cli/ExitCode.h"
#include "platform/core/NotificationCenter.h"
#include "settings/SettingKeys.h"
#include "support/Profiles.h"

// How changes of a printer end, whichever program makes them: a row a change.
struct EndingCase {
    QByteArray profile;
    const char *wanted;         // settings in JSON, by their whole names
    const char *ending;         // how far it came, then the wanted settings and those not verified
    ExitCode code;              // of the command line
    const char *said;           // among other words
    const char *saved;          // the value of the wanted setting that the data manager then holds
    QByteArray inSend = {};     // what goes wrong in the send, after the login
    QByteArray afterSend = {};  // and when the printer is read again
    QByteArray password = "open123";
    bool isWritten = true;  // whether a setting frame reached the printer, beside the login
};

inline QList<EndingCase> endingCases() {
    using enum ExitCode;
    const char *const name = R"({"names.bonjour": "desk"})";
    const char *const password = R"({"password.administrator": "new-1"})";
    const char *const noPassword = R"({"password.administrator": ""})";
    const QByteArray open = R"({"items": {"0x1004": "old"}})",
                     locked = R"({"password": "open123"})";
    const QByteArray fault = R"({"items": {"%1": {%2}}})";
    const auto faultOf = [&](const char *item, const char *what) {
        return QByteArray(fault).replace("%1", item).replace("%2", what);
    };
    const auto profileWith = [&](const char *item, const char *what) {
        return R"({"password": "open123", "faults": )" + faultOf(item, what) + '}';
    };
    return {
        {open, name, "Sent: names.bonjour=Verified", Done, "and has the new settings", "'desk'"},
        {open, name, "Sent: names.bonjour=Refused", NotAccepted, "did not accept", "'old'",
         faultOf("0x1004", R"("result": 5)")},
        {open, name, "Sent: names.bonjour=Differs", NotAccepted,
         "sent as desk, and read back as old", "'old'", faultOf("0x1004", R"("result": 0)")},
        // Without a reply, taken or not.
        {open, name, "Sent: names.bonjour=Verified", Done, "and has the new settings", "'desk'",
         faultOf("0x1004", R"("noReply": true)")},
        {open, name, "Sent: names.bonjour=Differs", NotAccepted, "read back as old", "'old'",
         faultOf("0x1004", R"("noReply": true, "result": 0)")},
        {open, name, "Sent: names.bonjour=Unclear", NotAccepted, "not clear", "'old'",
         faultOf("0x1004", R"("noReply": true)"), faultOf("0x1004", R"("code": "0x7777")")},
        {open,
         name,
         "Sent, unread: names.bonjour=Accepted",
         NotReached,
         "not verified",
         "'desk'",
         {},
         R"({"refuseConnection": true})"},
        {open, name, "Lost:", NotReached, "Nothing was applied", "'old'",
         faultOf("0x1007", R"("closeAfterReply": true)")},
        {open,
         name,
         "NotReached:",
         NotReached,
         "cannot be reached",
         "'old'",
         R"({"refuseConnection": true})",
         {},
         {},
         false},

        {locked, password, "Sent: password.administrator=Verified", Done, "has the new settings",
         "''"},
        {locked, password, "Sent: password.administrator=Differs", NotAccepted, "not read back",
         "''", faultOf("0x1003", R"("result": 0)")},
        {locked,
         password,
         "Sent: password.administrator=Accepted",
         Done,
         "password.administrator",
         "''",
         {},
         faultOf("0x1001", R"("noReply": true)")},
        {locked, noPassword, "Sent: password.administrator=Verified", Done, "has the new settings",
         "''"},
        {locked, noPassword, "Sent: password.administrator=Differs", NotAccepted, "not read back",
         "''", faultOf("0x1003", R"("result": 0)")},
        {locked,
         noPassword,
         "Sent: password.administrator=Accepted",
         Done,
         "password.administrator",
         "''",
         {},
         faultOf("0x1000", R"("noReply": true)")},

        {profileWith("0x1000", R"("noReply": true)"),
         name,
         "Login NotReached:",
         NotReached,
         "cannot be reached",
         "'label-printer'",
         {},
         {},
         "open123",
         false},
        {profileWith("0x1001", R"("result": 4)"),
         name,
         "Login Refused:",
         LoginRefused,
         "did not accept the password",
         "'label-printer'",
         {},
         {},
         "open123",
         false},
        {profileWith("0x1001", R"("noReply": true)"),
         name,
         "Login NoReply:",
         NotReached,
         "cannot be reached",
         "'label-printer'",
         {},
         {},
         "open123",
         false},
        {locked,
         name,
         "Login Missing:",
         LoginRefused,
         "none was given",
         "'label-printer'",
         {},
         {},
         {},
         false},

        // Keys: this one is never reported, the other is.
        {open, R"({"wireless.key": "office-key"})", "Sent: wireless.key=Accepted", Done,
         "wireless.key", "''"},
        {open, R"({"accessPoint.key": "office-key"})", "Sent: accessPoint.key=Differs", NotAccepted,
         "accessPoint.key was not read back", "'00000000'", faultOf("0x3202", R"("result": 0)")},
    };
}

// Lets go wrong in a send, and after it, what the case says, as long as the result lives.
inline auto faultsOfSend(VirtualPrinter &printer, const EndingCase &c) {
    const auto at = [&](const QString &message, const QByteArray &faults) {
        return NotificationCenter::shared().observe(message, [&](const Notification &) {
            printer.setFaults(faultsOf(faults.isEmpty() ? "{}" : faults));
        });
    };
    return std::array{at(DWT_DataSend_Start_Message, c.inSend),
                      at(DWT_DataSend_Stop_Message, c.afterSend)};
}
