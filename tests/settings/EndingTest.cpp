// What changes in a printer, and how a change ends.

#include "settings/Session.h"
#include "support/DataManagers.h"
#include "support/Endings.h"

namespace {

using namespace Qt::StringLiterals;

TEST(Plans, HoldChangesFaultsAndWhatMayKeepThePrinterFromBeingReached) {
    const char *const secured = "wireless.authentication=wpa2|.encryption=aes|.ssid=é|.key=";
    const char *const fixed = "wired.address.mode=1|.ip=10.0.0.5|.mask=255.0.0.0|.gateway=0.0.0.0";
    const char *const open =
        "wireless.address.mode=fixed|.ip=10.0.0.7|.mask=255.255.0.0|.gateway=0.0.0.0|"
        "wireless.authentication=open|.encryption=none|.ssid=Old|.mode=infrastructure|"
        "wireless.inUse.ip=10.0.0.7|accessPoint.address.ip=192.168.1.1";
    const struct {
        const char *saved, *wanted;
        const char *plan;  // changes, faults and warnings, without "wireless."
    } cases[] = {
        {secured, "wireless.ssid=é|.encryption=aes", "//"},
        {secured, "wireless.ssid=è", "/ssid/"},
        {secured, "wireless.encryption=tkip|.key=12345678", "encryption key//"},
        {secured, "wireless.encryption=wep|.wepKey=abcde", "encryption wepKey/encryption/"},
        {secured, "wireless.authentication=open|.encryption=wep|.key=12345678",
         "authentication encryption key/key/0 é"},
        {secured, "wireless.authentication=shared", "authentication/authentication/0 é"},
        {secured, "wireless.wepKeyNumber=2", "wepKeyNumber/wepKeyNumber/"},
        {fixed, "wired.address.gateway=0.0.0.0|.ip=010.0.0.5", "//"},
        {fixed, "wired.address.ip=10.0.0.6", "wired.address.ip/wired.address.gateway/"},
        {fixed, "wired.address.mode=automatic", "wired.address.mode//"},
        {fixed, "wired.address.mode=automatic|.ip=10.0.0.6", "wired.address.mode//"},
        {fixed, "password.administrator=", "password.administrator//"},
        {open, "wireless.ssid=New", "ssid//"},
        {open, "wireless.authentication=wpa2|.encryption=aes", "authentication encryption//0 Old"},
        {open, "wireless.authentication=wpa2|.encryption=aes|.key=12345678",
         "authentication encryption key//"},
        {open, "wireless.encryption=wep|.wepKey=abcde", "encryption wepKey//"},
        {open, "wireless.encryption=wep", "encryption//0 Old"},
        {open, "wireless.address.gateway=10.0.255.255|.mask=255.0.255.0",
         "address.mask address.gateway//1 255.0.255.0"},
        {open, "wireless.address.gateway=10.0.255.255|.mask=128.0.0.0",
         "address.mask address.gateway//"},
        {open, "wireless.address.gateway=10.1.0.1", "address.gateway//2 10.1.0.1"},
        {open, "wireless.address.gateway=10.0.255.255", "address.gateway//"},
        {open, "wireless.mode=access-point", "mode//3 10.0.0.7"},
        {open, "wireless.mode=off", "mode//3 10.0.0.7"},
        {open, "wireless.address.mask=0.0.0.1", "address.mask/address.gateway/1 0.0.0.1"},
        {"device.timeout=60", "device.timeout=30", "device.timeout//"},
        {"device.timeout=60", "device.timeout=29", "/device.timeout/"},
        {"device.timeout=60", "device.timeout=300", "device.timeout//"},
        {"device.timeout=60", "device.timeout=301", "/device.timeout/"}};
    for (const auto &c : cases) {
        const Plan plan = planOf(recordOf(c.saved), valuesOf(c.wanted));
        QStringList changes, faults, warnings;
        for (const Plan::Change &change : plan.changes) changes << change.setting->name;
        for (const Fault &fault : plan.faults) faults << fault.place.name;
        for (const SendWarning &warning : plan.warnings)
            warnings << u"%1 %2"_s.arg(warning.kind).arg(warning.subject);
        const QStringList parts{changes.join(u' '), faults.join(u' '), warnings.join(u' ')};
        EXPECT_EQ(parts.join(u'/').remove(u"wireless."_s).toStdString(), c.plan) << c.wanted;
    }
}

TEST(Plans, AreToldOfATextWithoutAValueWhatIsExpected) {
    EXPECT_TRUE(parsedText(*settingOf(u"wireless.mode"_s), u"on"_s).fault.contains(u"off, inf"_s));
    EXPECT_TRUE(parsedText(*settingOf(u"device.timeout"_s), u"x"_s).fault.contains(u"30 to 300"_s));
}

// "Sent: names.bonjour=Verified": the settings of the plan, and the others that are not verified.
std::string asText(const Ending &ending, const Plan &plan) {
    const char *const courses[] = {"Sent", "NotReached", "Lost", "Stopped"};
    const char *const logins[] = {"Passed", "Missing", "Refused", "NoReply", "NotReached"};
    const char *const states[] = {"Accepted", "Verified", "Differs", "Refused", "Unclear"};
    std::string text = courses[int(ending.course)];
    if (ending.login != Ending::Login::Passed)
        text = std::string("Login ") + logins[int(ending.login)];
    const bool isCompared = ending.comparison == Ending::Comparison::Done;
    text += ending.isSent() && !isCompared ? ", unread:" : ":";
    for (const Ending::Part &part : ending.parts)
        if (ending.isSent() && (part.setting == plan.changes.first().setting ||
                                (isCompared && part.state != Ending::State::Verified)))
            text += ' ' + part.setting->name.toStdString() + '=' + states[int(part.state)];
    return text;
}

TEST(Endings, SayOfEverySettingWhatThePrinterWasSeenToHave) {
    for (const EndingCase &c : endingCases()) {
        SCOPED_TRACE(std::string(c.wanted) + " -> " + c.ending);
        ServedManager m(R"({"password": "open123"})");
        const auto faults = faultsOfSend(m.printer(), c);
        Session session(m.served.entry());
        ASSERT_EQ(session.read(), Session::Reading::Complete);
        m.served.received();
        const Plan plan = planOf(session.record(), valuesOf(c.wanted));
        ASSERT_EQ(plan.changes.size(), 1);
        const auto password = [&] {
            return *c.password ? std::optional(QString::fromUtf8(c.password)) : std::nullopt;
        };
        const Ending ending = session.change(plan, password, [] { return true; });
        EXPECT_EQ(asText(ending, plan), c.ending);
        const QString said = session.wordsOf(ending, Naming::Stable).join(u' ');
        EXPECT_TRUE(said.contains(QLatin1String(c.said))) << qPrintable(said);
        const bool isWritten = m.served.received().remove(u"=1001"_s).contains(u'=');
        const QByteArray course = QByteArray(c.ending).left(4);
        EXPECT_EQ(isWritten, course == "Sent" || course == "Lost");
        const Setting &setting = *plan.changes.first().setting;
        if (setting.isSecret()) continue;
        EXPECT_EQ(textValue(session.manager()->savedData()[setting.viewKey], setting.key),
                  QString::fromUtf8(m.printer().item(setting.item.code)))
            << "saved is something else than the printer has";
    }
}

}  // namespace
