// How a change ends, as the printer is read again and compared.

#include "support/Endings.h"

#include <QJsonObject>

#include "settings/Session.h"
#include "support/DataManagers.h"

namespace {

using namespace Qt::StringLiterals;

Plan planOf(const Session &session, const QByteArray &json) {
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    QList<WantedValue> values;
    for (const QString &name : object.keys()) {
        const Setting *const setting = settingOf(name);
        values << WantedValue{
            setting, *parsedText(*setting, object[name].toString()).value, {}, {}};
    }
    return planOf(session.record(), values);
}

// "Sent: names.bonjour=Verified": the settings of the plan, and the others that are not verified.
std::string asText(const Ending &ending, const Plan &plan) {
    const char *const courses[] = {"Sent", "NotReached", "Lost", "Stopped"};
    const char *const logins[] = {"Passed", "Missing", "Refused", "NoReply", "NotReached"};
    const char *const states[] = {"Accepted", "Verified", "Differs", "Refused", "Unclear"};
    QString text = QLatin1String(courses[int(ending.course)]);
    if (ending.login != Ending::Login::Passed)
        text = u"Login "_s + QLatin1String(logins[int(ending.login)]);
    if (ending.comparison == Ending::Comparison::Failed) text += u", unread"_s;
    text += u':';
    if (!ending.isSent()) return text.toStdString();
    const auto isPlanned = [&](const Setting *setting) {
        return std::any_of(plan.changes.begin(), plan.changes.end(),
                           [&](const Plan::Change &change) { return change.setting == setting; });
    };
    for (const Ending::Part &part : ending.parts)
        if (isPlanned(part.setting) || (ending.comparison == Ending::Comparison::Done &&
                                        part.state != Ending::State::Verified))
            text += u" %1=%2"_s.arg(part.setting->name, QLatin1String(states[int(part.state)]));
    return text.toStdString();
}

class Endings : public testing::Test {
  protected:
    ~Endings() override { installLibrary(nullptr); }

    // A printer inside this process, in time however slow the machine is.
    Session open(const QByteArray &profile) {
        served = std::make_unique<OnePrinterLibrary>(
            printerOf(profile), OnePrinterLibrary::Transport::Virtual, PrinterEntry(), 20);
        installLibrary(served->library());
        Session session(served->entry());
        EXPECT_EQ(session.read(), Session::Reading::Complete);
        served->received();
        return session;
    }

    std::unique_ptr<OnePrinterLibrary> served;
};

TEST_F(Endings, SayOfEverySettingWhatThePrinterWasSeenToHave) {
    for (const EndingCase &c : endingCases()) {
        SCOPED_TRACE(c.profile.toStdString() + c.wanted + c.inSend.toStdString());
        Session session = open(c.profile);
        const Plan plan = planOf(session, c.wanted);
        ASSERT_EQ(plan.changes.size(), 1);
        const auto faults = faultsOfSend(served->printer(), c);
        const auto password = [&] {
            return c.password.isEmpty() ? std::nullopt
                                        : std::optional(QString::fromUtf8(c.password));
        };
        const Ending ending = session.change(plan, password, [] { return true; });
        EXPECT_EQ(asText(ending, plan), c.ending);
        EXPECT_EQ(ending.isComplete(),
                  c.code == ExitCode::Done || ending.comparison == Ending::Comparison::Failed);
        const QString said = session.wordsOf(ending, Naming::Stable).join(u' ');
        EXPECT_TRUE(said.contains(QLatin1String(c.said))) << qPrintable(said);
        const Setting &setting = *plan.changes.first().setting;
        EXPECT_EQ(std::visit(ValueText(),
                             session.manager()->savedData()[setting.viewKey].value(setting.key)),
                  QLatin1String(c.saved));
        EXPECT_EQ(served->received().remove(u"=1001"_s).contains(u'='), c.isWritten);
    }
}

TEST_F(Endings, NothingIsWrittenAfterAPersonHasStoppedIt) {
    Session session = open("{}");
    const Plan plan = planOf(session, R"({"names.bonjour": "desk"})");
    const Ending ending = session.change(
        plan, [] { return std::nullopt; }, [] { return false; });
    EXPECT_EQ(asText(ending, plan), "Stopped:");
    EXPECT_FALSE(ending.isComplete());
    EXPECT_FALSE(served->received().contains(u'='));
}

}  // namespace
