#pragma once

#include <QList>
#include <QString>

#include "settings/Settings.h"

// How a send ended: for the connection, the login, and each setting.
struct Ending {
    // How far it came.
    enum class Course {
        Sent,        // every setting had its turn
        NotReached,  // the printer could not be connected, or gave no answer: nothing was written
        Lost,        // the connection was lost before the update frame: nothing was applied
        Stopped      // by a person, before anything was written
    };
    // Unless passed, nothing was written.
    enum class Login {
        Passed,   // or not needed
        Missing,  // there is no password to log in with
        Refused,
        NoReply,    // or none that can be used
        NotReached  // the printer could not be connected
    };
    enum class State {
        Accepted,  // not compared yet, or not reported by the printer
        Verified,  // the printer was seen to have it
        Differs,   // the printer was seen to have something else
        Refused,   // by the printer, or it does not fit into a frame
        Unclear    // without a usable reply: the printer may have taken it
    };
    // Whether the printer was read again and compared.
    enum class Comparison { None, Failed, Done };
    struct Part {
        const Setting *setting;
        State state;
        int code = 0;           // with which the printer refused it
        bool isChanged = true;  // otherwise it went back as it was read
        // What was sent and, of one that was compared, what the printer holds; of a secret empty.
        QString sentText = {}, heldText = {};
    };

    Course course = Course::Sent;
    Login login = Login::Passed;
    // The settings that were written, in the order of the send; the others were not sent.
    QList<Part> parts;
    Comparison comparison = Comparison::None;

    // Whether every setting had its turn.
    bool isSent() const { return course == Course::Sent && login == Login::Passed; }
    // Whether the printer accepted everything, and nothing was read back otherwise.
    bool isComplete() const { return isClean({}); }
    // The same of the value of a record's key; one that was not to be written counts as accepted.
    bool isClean(const QString &key) const;
    QList<const Setting *> in(State state) const;
};

// The ways to name a setting.
enum class Naming {
    Stable,  // "names.bonjour", as files do
    Labels   // "Names: Bonjour name", as the windows do, one for all of an item
};
// The names of settings, each once.
QStringList namesOf(const QList<const Setting *> &settings, Naming naming);

// An ending in sentences, for the printer that is called `printer`. With labels the settings that
// the printer did not take stand in a table beside, and are not named.
QStringList wordsOf(const Ending &ending, const QString &printer, Naming naming);
