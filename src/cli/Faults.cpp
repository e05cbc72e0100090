#include "cli/Faults.h"

#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

QString wordsOf(const Fault &fault) {
    QStringList place;
    if (fault.place.line > 0)
        place << localized("DWT_Localize_Cli_Place_Line").arg(fault.place.line);
    const QString quoted = u'"' + fault.place.name + u'"';
    if (!fault.place.name.isEmpty())
        place << (fault.place.isColumn ? localized("DWT_Localize_Cli_Place_Column").arg(quoted)
                                       : quoted);
    QStringList parts;
    if (!fault.place.file.isEmpty()) parts << fault.place.file;
    if (!place.isEmpty()) parts << place.join(u", "_s);
    return (parts << fault.text).join(u": "_s);
}

QJsonObject asJson(const Fault &fault) {
    QJsonObject object{{u"message"_s, fault.text}, {u"fault"_s, fault.kind}};
    if (!fault.place.file.isEmpty()) object.insert(u"file"_s, fault.place.file);
    if (fault.place.line > 0) object.insert(u"line"_s, fault.place.line);
    if (!fault.place.name.isEmpty()) object.insert(u"name"_s, fault.place.name);
    return object;
}

QString wordOf(ExitCode code) {
    static const QMap<ExitCode, QString> words{{ExitCode::Done, u"changed"_s},
                                               {ExitCode::UsedWrongly, u"used-wrongly"_s},
                                               {ExitCode::InputRefused, u"refused"_s},
                                               {ExitCode::NotReached, u"not-reached"_s},
                                               {ExitCode::LoginRefused, u"login-refused"_s},
                                               {ExitCode::NotAccepted, u"not-accepted"_s},
                                               {ExitCode::Stopped, u"stopped"_s},
                                               {ExitCode::WouldChange, u"would-change"_s}};
    return words[code];
}
