#pragma once

#include <QString>
#include <optional>

#include "settings/Plan.h"

// Where the administrator password of the printers comes from: a file, otherwise the environment
// variable below, otherwise the person at the terminal, who is asked once. Main thread.
class Passwords {
  public:
    static constexpr const char *variable = "NETWORK_SETTING_PASSWORD";

    Passwords() = default;
    ~Passwords();
    Passwords(const Passwords &) = delete;
    Passwords &operator=(const Passwords &) = delete;

    // Reads the file, when one is named; otherwise looks at the environment. False when it cannot
    // be read, and `fault` says why.
    bool load(const QString &file, Fault &fault);

    // The password; `printer` is what the person is told that it is for. Nothing when there is
    // none.
    std::optional<QString> forPrinter(const QString &printer);

  private:
    std::optional<QString> m_password;
};
