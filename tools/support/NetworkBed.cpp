#include "support/NetworkBed.h"

#include <avahi-client/publish.h>
#include <avahi-common/simple-watch.h>
#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

namespace {

constexpr int patience = 10000;  // ms until a daemon must answer

const char *const busConfiguration = R"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>system</type><listen>unix:tmpdir=/tmp</listen>
<auth>EXTERNAL</auth><auth>ANONYMOUS</auth><allow_anonymous/>
<policy context="default"><allow user="*"/><allow own="*"/><allow send_type="method_call"/>
<allow send_destination="*"/><allow receive_sender="*"/></policy></busconfig>)";

const char *const daemonConfiguration =
    "[server]\nallow-interfaces=lo\nuse-ipv4=yes\nuse-ipv6=yes\nenable-dbus=yes\n"
    "objects-per-client-max=8192\nratelimit-interval-usec=1000000\nratelimit-burst=10000\n"
    "cache-entries-max=65536\nentries-per-entry-group-max=65536\n"
    "[wide-area]\nenable-wide-area=no\n[publish]\npublish-workstation=no\n[rlimits]\n";

// A folder of its own under /run, where the daemon keeps what only one may have.
const char *const inOwnFolder =
    "mount -t tmpfs tmpfs /run && mkdir /run/avahi-daemon && exec \"$@\"";

bool write(const QString &path, const char *text) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) > 0;
}

struct Server {
    std::unique_ptr<AvahiSimplePoll, decltype(&avahi_simple_poll_free)> poll{
        avahi_simple_poll_new(), avahi_simple_poll_free};
    // Nothing is ever iterated: the daemon does what it is asked all the same.
    std::unique_ptr<AvahiClient, decltype(&avahi_client_free)> client{
        avahi_client_new(avahi_simple_poll_get(poll.get()), AvahiClientFlags{}, nullptr, nullptr,
                         nullptr),
        avahi_client_free};
};

}  // namespace

struct NetworkBed::Announced {
    Server server;
    AvahiEntryGroup *group = nullptr;  // the client's
};

NetworkBed::NetworkBed() : m_turn(QDir::temp().filePath(QStringLiteral("nst-network-bed.lock"))) {
    m_turn.lock();
    qputenv("DBUS_SYSTEM_BUS_ADDRESS",
            "unix:path=" + QFile::encodeName(folder().filePath(QStringLiteral("bus"))));
    write(folder().filePath(QStringLiteral("bus.conf")), busConfiguration);
    write(folder().filePath(QStringLiteral("avahi.conf")), daemonConfiguration);
}

NetworkBed::~NetworkBed() {
    stopDaemon();
    m_bus.kill();
    m_bus.waitForFinished();
    QFile::remove(folder().filePath(QStringLiteral("bus")));
}

const QTemporaryDir &NetworkBed::folder() {
    static const QTemporaryDir folder;
    return folder;
}

bool NetworkBed::start(QProcess &process, const QString &program, const QStringList &arguments) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LD_PRELOAD"));
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(folder().filePath(QStringLiteral("log")), QIODevice::Append);
    process.setStandardErrorFile(folder().filePath(QStringLiteral("log")), QIODevice::Append);
    process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process.start(program, arguments);
    return process.waitForStarted();
}

bool NetworkBed::startBus() {
    const QString bus = folder().filePath(QStringLiteral("bus"));
    if (!start(m_bus, QStringLiteral("dbus-daemon"),
               {QStringLiteral("--config-file=") + folder().filePath(QStringLiteral("bus.conf")),
                QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                QStringLiteral("--address=unix:path=") + bus}))
        return false;
    QElapsedTimer time;
    time.start();
    while (!QFile::exists(bus) && time.elapsed() < patience) QThread::msleep(2);
    return QFile::exists(bus);
}

bool NetworkBed::startDaemon() {
    QStringList arguments{QStringLiteral("--mount")};
    if (::geteuid() != 0)
        arguments << QStringLiteral("--user") << QStringLiteral("--map-root-user");
    arguments << QStringLiteral("sh") << QStringLiteral("-c") << QLatin1String(inOwnFolder)
              << QStringLiteral("sh") << QStringLiteral("/usr/sbin/avahi-daemon")
              << QStringLiteral("-f") << folder().filePath(QStringLiteral("avahi.conf"))
              << QStringLiteral("--no-drop-root") << QStringLiteral("--no-chroot")
              << QStringLiteral("--no-rlimits");
    if (!start(m_daemon, QStringLiteral("unshare"), arguments)) return false;
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < patience && m_daemon.state() == QProcess::Running) {
        const Server server;
        if (server.client && avahi_client_get_state(server.client.get()) == AVAHI_CLIENT_S_RUNNING)
            return true;
        QThread::msleep(20);
        m_daemon.waitForFinished(0);
    }
    return false;
}

void NetworkBed::stopDaemon() {
    m_announced.clear();
    if (m_daemon.state() == QProcess::NotRunning) return;
    m_daemon.terminate();
    if (!m_daemon.waitForFinished(patience)) m_daemon.kill();
    m_daemon.waitForFinished();
}

bool NetworkBed::announce(const QByteArray &as, const QList<Announcement> &printers) {
    auto announced = std::make_unique<Announced>();
    if (!announced->server.client) return false;
    const auto nothing = [](AvahiEntryGroup *, AvahiEntryGroupState, void *) {};
    announced->group = avahi_entry_group_new(announced->server.client.get(), nothing, nullptr);
    for (const Announcement &one : printers) {
        AvahiStringList *texts = nullptr;
        for (const QByteArray &text : one.texts)
            texts = avahi_string_list_add_arbitrary(
                texts, reinterpret_cast<const uint8_t *>(text.constData()),
                static_cast<size_t>(text.size()));
        const int error = avahi_entry_group_add_service_strlst(
            announced->group, AVAHI_IF_UNSPEC, one.protocol, AvahiPublishFlags{},
            one.name.constData(), "_pdl-datastream._tcp", nullptr,
            one.host.isEmpty() ? nullptr : one.host.constData(), one.port, texts);
        avahi_string_list_free(texts);
        if (error != 0) return false;
    }
    if (avahi_entry_group_commit(announced->group) != 0) return false;
    m_announced[as] = std::move(announced);
    return true;
}

void NetworkBed::withdraw(const QByteArray &as) {
    m_announced.erase(as);
}
