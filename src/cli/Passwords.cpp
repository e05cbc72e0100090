#include "cli/Passwords.h"

#include <cstdlib>

#include "cli/Terminal.h"
#include "platform/core/Texts.h"
#include "settings/SettingsFile.h"
#include "settings/Wipe.h"

Passwords::~Passwords() {
    if (m_password) wipe(*m_password);
}

bool Passwords::load(const QString &file, Fault &fault) {
    if (!file.isEmpty()) {
        m_password = readSecret(file, fault);
        return m_password.has_value();
    }
    const char *const given = std::getenv(variable);
    if (given && *given) m_password = QString::fromUtf8(given);
    return true;
}

std::optional<QString> Passwords::forPrinter(const QString &printer) {
    if (!m_password && !m_isDeclined)
        m_password = Terminal::askPassword(localized("DWT_Localize_Cli_AskPassword").arg(printer));
    m_isDeclined = !m_password;
    return m_password ? std::optional(ownCopy(*m_password)) : std::nullopt;
}
