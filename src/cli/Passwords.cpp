#include "cli/Passwords.h"

#include <cstdlib>
#include <cstring>

#include "cli/Terminal.h"
#include "platform/core/Texts.h"
#include "settings/SettingsFile.h"
#include "settings/Wipe.h"

namespace {

// How often a password may be typed.
constexpr int mostTries = 3;

}  // namespace

Passwords::~Passwords() {
    if (m_password) wipe(*m_password);
}

bool Passwords::load(const QString &file, Fault &fault) {
    if (!file.isEmpty()) {
        m_password = readSecret(file, fault);
        return m_password.has_value();
    }
    // The environment shows in the system's list of processes until it is overwritten.
    char *const given = std::getenv(variable);
    if (!given) return true;
    if (*given) m_password = QString::fromUtf8(given);
    ::explicit_bzero(given, std::strlen(given));
    ::unsetenv(variable);
    return true;
}

bool Passwords::mayRetry() {
    if (m_typed == 0 || m_typed >= mostTries || !m_password) return false;
    wipe(*m_password);
    m_password.reset();
    return true;
}

std::optional<QString> Passwords::forPrinter(const QString &printer) {
    if (!m_password && !m_isDeclined) {
        m_password = Terminal::askPassword(localized("DWT_Localize_Cli_AskPassword").arg(printer));
        ++m_typed;
    }
    m_isDeclined = !m_password;
    return m_password ? std::optional(ownCopy(*m_password)) : std::nullopt;
}
