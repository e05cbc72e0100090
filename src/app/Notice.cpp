#include "app/Notice.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingReply>

#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.Notifications"_s;
const QString path = u"/org/freedesktop/Notifications"_s;

// As long as the desktop shows notifications by itself.
constexpr int usualTime = -1;

QDBusMessage callOf(const QString &method, const QVariantList &arguments) {
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, service, method);
    call.setArguments(arguments);
    return call;
}

}  // namespace

void Notice::show() {
    if (!m_bus.isConnected()) return;
    if (!m_listens)
        m_listens = m_bus.connect(service, path, service, u"ActionInvoked"_s, this,
                                  SLOT(actionInvoked(uint, QString)));
    m_isWanted = true;
    const QString open = localized("DWT_Localize_Notice_Open");
    const QString program = QCoreApplication::applicationName();
    const QString name = localized("DWT_Localize_App_Name");
    const QDBusMessage call =
        callOf(u"Notify"_s, {name, m_id, program, name, localized("DWT_Localize_Notice_Text"),
                             QStringList{u"default"_s, open, u"open"_s, open},
                             QVariantMap{{u"desktop-entry"_s, program}}, usualTime});
    connect(new QDBusPendingCallWatcher(m_bus.asyncCall(call), this),
            &QDBusPendingCallWatcher::finished, this, &Notice::noteShown);
}

void Notice::noteShown(QDBusPendingCallWatcher *call) {
    const QDBusPendingReply<uint> reply = *call;
    call->deleteLater();
    m_id = reply.isValid() ? reply.value() : 0;
    if (!m_isWanted) close();  // it was taken away meanwhile
}

void Notice::close() {
    m_isWanted = false;
    if (m_id == 0) return;
    m_bus.asyncCall(callOf(u"CloseNotification"_s, {m_id}));
    m_id = 0;
}

void Notice::actionInvoked(uint id, const QString &) {
    if (id == m_id) Q_EMIT windowsWanted();
}
