#pragma once

#include <QString>
#include <optional>

#include "settings/Plan.h"

// The administrator password: of a file, of the environment, or asked for once. Main thread.
class Passwords {
  public:
    static constexpr const char *variable = "NETWORK_SETTING_PASSWORD";

    Passwords() = default;
    ~Passwords();
    Passwords(const Passwords &) = delete;
    Passwords &operator=(const Passwords &) = delete;

    // Reads the named file, else the environment. False, with a `fault`, when the file cannot be
    // used.
    bool load(const QString &file, Fault &fault);

    // Whether a password that was typed, and refused, may be typed again; if so, it is forgotten.
    bool mayRetry();

    // The password for the printer that is called `printer`; nothing when there is none.
    std::optional<QString> forPrinter(const QString &printer);

  private:
    std::optional<QString> m_password;
    bool m_isDeclined = false;  // it was asked for, and not entered
    int m_typed = 0;            // how often it was entered
};
