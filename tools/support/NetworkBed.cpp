#include "support/NetworkBed.h"

#include <avahi-client/publish.h>
#include <avahi-common/domain.h>
#include <avahi-common/simple-watch.h>
#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <QtEndian>
#include <array>

namespace {

constexpr int patience = 10000;  // ms until a daemon must answer

const char *const busConfiguration = R"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>system</type><listen>unix:tmpdir=/tmp</listen>
<auth>EXTERNAL</auth><auth>ANONYMOUS</auth><allow_anonymous/>
<policy context="default"><allow user="*"/><allow own="*"/><allow send_type="method_call"/>
<allow send_destination="*"/><allow receive_sender="*"/></policy></busconfig>)";

const QByteArray daemonConfiguration =
    "[server]\nallow-interfaces=lo\nuse-ipv4=yes\nuse-ipv6=yes\nenable-dbus=yes\n"
    "ratelimit-interval-usec=1000000\nratelimit-burst=10000\n"
    "entries-per-entry-group-max=65536\n"
    "[wide-area]\nenable-wide-area=no\n[rlimits]\n"
    // It would look for a second whether another machine has its name.
    "[publish]\npublish-workstation=no\npublish-addresses=no\npublish-hinfo=no\n"
    "[server]\nobjects-per-client-max=";

// A loopback interface of its own, which no other daemon sees; a folder under /run, where it keeps
// what only one may have; and a user of its name, which it asks for, that is the only one here.
const char *const inOwnNetwork =
    "ip link set lo up && mount -t tmpfs tmpfs /run && mkdir /run/avahi-daemon &&"
    "echo avahi:x:0:0::/: >/run/passwd && mount --bind /run/passwd /etc/passwd &&"
    "echo avahi:x:0: >/run/group && mount --bind /run/group /etc/group && exec \"$@\"";

// The machine that printers without a host are on.
const QByteArray thisMachine = "bed.local";

bool write(const QString &path, const QByteArray &text) {
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

// Texts of at most 255 bytes as records hold them, each after its length.
QByteArray counted(const QList<QByteArray> &texts) {
    QByteArray bytes;
    for (const QByteArray &text : texts) bytes += static_cast<char>(text.size()) + text;
    return bytes;
}

// A domain name as records hold it.
QByteArray domainName(const QList<QByteArray> &labels) {
    return counted(labels) + '\0';
}

// Adds a record that is taken as nobody else's without a look, which would take most of a second.
bool add(AvahiEntryGroup *group, const QByteArray &name, quint16 type, const QByteArray &data,
         int flags = AVAHI_PUBLISH_UNIQUE | AVAHI_PUBLISH_NO_PROBE) {
    return avahi_entry_group_add_record(group, AVAHI_IF_UNSPEC, AVAHI_PROTO_UNSPEC,
                                        static_cast<AvahiPublishFlags>(flags), name.constData(),
                                        AVAHI_DNS_CLASS_IN, type, AVAHI_DEFAULT_TTL_HOST_NAME,
                                        data.constData(), static_cast<size_t>(data.size())) == 0;
}

bool add(AvahiEntryGroup *group, const NetworkBed::Announcement &printer) {
    std::array<char, AVAHI_DOMAIN_NAME_MAX> name{};
    avahi_service_name_join(name.data(), name.size(), printer.name.constData(),
                            "_pdl-datastream._tcp", "local");
    const QByteArray host = printer.host.isEmpty() ? thisMachine : printer.host;
    QByteArray place(6, '\0');  // priority, weight, port
    qToBigEndian(printer.port, place.data() + 4);
    return add(group, "_pdl-datastream._tcp.local", AVAHI_DNS_TYPE_PTR,
               domainName({printer.name, "_pdl-datastream", "_tcp", "local"}), 0) &&
           add(group, name.data(), AVAHI_DNS_TYPE_SRV, place + domainName(host.split('.'))) &&
           add(group, name.data(), AVAHI_DNS_TYPE_TXT,
               printer.texts.isEmpty() ? QByteArray(1, '\0') : counted(printer.texts)) &&
           (printer.address.isEmpty() || add(group, host, AVAHI_DNS_TYPE_A, printer.address));
}

}  // namespace

struct NetworkBed::Announced {
    Announced() {
        const auto nothing = [](AvahiEntryGroup *, AvahiEntryGroupState, void *) {};
        if (server.client) group = avahi_entry_group_new(server.client.get(), nothing, nullptr);
    }
    bool commit() const { return avahi_entry_group_commit(group) == 0; }

    Server server;
    AvahiEntryGroup *group = nullptr;  // the client's
};

NetworkBed::NetworkBed() {
    qputenv("DBUS_SYSTEM_BUS_ADDRESS",
            "unix:path=" + QFile::encodeName(folder().filePath(QStringLiteral("bus"))));
    write(folder().filePath(QStringLiteral("bus.conf")), busConfiguration);
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

bool NetworkBed::startDaemon(int objects, int cached) {
    write(folder().filePath(QStringLiteral("avahi.conf")),
          daemonConfiguration + QByteArray::number(objects) +
              "\ncache-entries-max=" + QByteArray::number(cached) + '\n');
    QStringList arguments{QStringLiteral("--mount"), QStringLiteral("--net")};
    if (::geteuid() != 0)
        arguments << QStringLiteral("--user") << QStringLiteral("--map-root-user");
    arguments << QStringLiteral("sh") << QStringLiteral("-c") << QLatin1String(inOwnNetwork)
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
            return announceThisMachine();
        QThread::msleep(5);
        m_daemon.waitForFinished(0);
    }
    return false;
}

void NetworkBed::stopDaemon() {
    m_daemon.kill();
    m_daemon.waitForFinished();
    m_announced.clear();
}

void NetworkBed::hangDaemon() const {
    signalDaemon(SIGSTOP);
}

void NetworkBed::resumeDaemon() const {
    signalDaemon(SIGCONT);
}

// All that was started has become the daemon, so its process id is the daemon's.
void NetworkBed::signalDaemon(int signal) const {
    const auto daemon = static_cast<pid_t>(m_daemon.processId());
    if (daemon > 0) ::kill(daemon, signal);
}

bool NetworkBed::announceThisMachine() {
    const auto &machine = m_announced[thisMachine] = std::make_unique<Announced>();
    return machine->group &&
           add(machine->group, thisMachine, AVAHI_DNS_TYPE_A, QByteArray::fromHex("7f000001")) &&
           add(machine->group, thisMachine, AVAHI_DNS_TYPE_AAAA, QByteArray(15, '\0') + '\1') &&
           machine->commit();
}

bool NetworkBed::announce(const QByteArray &as, const QList<Announcement> &printers) {
    auto announced = std::make_unique<Announced>();
    if (!announced->group) return false;
    for (const Announcement &one : printers)
        if (!add(announced->group, one)) return false;
    if (!announced->commit()) return false;
    m_announced[as] = std::move(announced);
    return true;
}

void NetworkBed::withdraw(const QByteArray &as) {
    m_announced.erase(as);
}
