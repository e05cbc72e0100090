#pragma once

#include <QProcess>
#include <QTemporaryDir>
#include <map>
#include <memory>

// A network of which this process alone knows: a system bus of its own, and on it an avahi-daemon
// that sees a loopback interface of its own only.
class NetworkBed {
  public:
    // Prepares the bus; neither it nor the daemon runs yet. Before anything asks for a system bus:
    // a process looks up its address once.
    NetworkBed();
    ~NetworkBed();
    NetworkBed(const NetworkBed &) = delete;
    NetworkBed &operator=(const NetworkBed &) = delete;

    // True when they run and answer. The daemon lets a program have so many objects and
    // keeps so many records of others; by default as many as it comes with.
    bool startBus();
    bool startDaemon(int objects = 1024, int cached = 4096);
    void stopDaemon();
    // Lets the daemon hang, and go on. Nothing can be announced or withdrawn meanwhile.
    void hangDaemon() const;
    void resumeDaemon() const;

    struct Announcement {
        QByteArray name;
        quint16 port = 9100;
        QList<QByteArray> texts = {};
        QByteArray host = {};     // empty: this machine
        QByteArray address = {};  // IPv4, of that host, which then is announced by this one alone
    };
    // Announces printers until they are withdrawn, as one, or the daemon stops. False when the
    // daemon takes one of them not.
    bool announce(const QByteArray &as, const QList<Announcement> &printers);
    void withdraw(const QByteArray &as);

  private:
    static const QTemporaryDir &folder();
    bool start(QProcess &process, const QString &program, const QStringList &arguments);
    bool announceThisMachine();
    void signalDaemon(int signal) const;

    QProcess m_bus, m_daemon;
    struct Announced;
    std::map<QByteArray, std::unique_ptr<Announced>> m_announced;
};
