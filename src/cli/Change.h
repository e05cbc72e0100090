#pragma once

#include "cli/Outcome.h"

// Wipes the secrets of values, here and wherever their texts are shared.
void forgetSecrets(QList<WantedValue> &values);

// The change of one printer that was read, to what is wanted. Any thread, one at a time.
class Change {
  public:
    // Plans it. A wanted administrator password that the printer is seen to have is no change.
    Change(Session &session, const QList<WantedValue> &wanted, Keys keys);
    ~Change();
    Change(const Change &) = delete;
    Change &operator=(const Change &) = delete;

    // What it comes to without a send: refused, unchanged, or would change.
    const Outcome &planned() const { return m_planned; }
    // Adds warnings of which the plan knows nothing.
    void warn(const QList<Outcome::Warning> &warnings) { m_planned.warnings += warnings; }
    // Makes it, as Session::change(). The password is not asked for when it is known already.
    Outcome make(const Session::AskPassword &password, const std::function<bool()> &mayBegin);

  private:
    void plan(QList<WantedValue> wanted, Keys keys);
    bool hasPassword(const QString &password);

    Session &m_session;
    Outcome m_planned;
    QString m_password;  // that the printer is seen to have
};
