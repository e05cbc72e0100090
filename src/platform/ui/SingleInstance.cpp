#include "platform/ui/SingleInstance.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

// Between two tries, in milliseconds.
constexpr int retryPause = 50;

QString pathOf(const QString &suffix) {
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + u'/' +
           QCoreApplication::applicationName() + suffix;
}

}  // namespace

SingleInstance::SingleInstance(int longestAnswer) : m_lock(pathOf(u".lock"_s)) {
    m_lock.setStaleLockTime(0);  // stale only when its process is gone
    const QString socket = pathOf(u".socket"_s);
    // The first process may be starting (no socket yet) or ending (no lock any more).
    const QDeadlineTimer deadline(longestAnswer);
    while (!m_lock.tryLock(retryPause) && m_lock.error() == QLockFile::LockFailedError) {
        QLocalSocket first;
        first.connectToServer(socket);
        if (first.waitForConnected(retryPause)) {
            m_first = false;
            m_answered = first.waitForReadyRead(longestAnswer);
            return;
        }
        if (deadline.hasExpired()) return;
    }
    if (!m_lock.isLocked()) return;
    QLocalServer::removeServer(socket);  // left by a process that died
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        QLocalSocket *const again = m_server.nextPendingConnection();
        connect(again, &QLocalSocket::disconnected, again, &QObject::deleteLater);
        again->write("!");  // any byte will do
        again->flush();
        Q_EMIT startedAgain();
    });
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.listen(socket);
}
