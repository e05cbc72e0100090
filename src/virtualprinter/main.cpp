#include <sys/signalfd.h>
#include <unistd.h>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QSocketNotifier>
#include <csignal>
#include <cstdio>

#include "virtualprinter/VirtualPrinterDevice.h"
#include "virtualprinter/VirtualPrinterServer.h"

using namespace Qt::StringLiterals;

namespace {

int fail(const QString &message) {
    std::fprintf(stderr, "virtual-printer: %s\n", qUtf8Printable(message));
    return 1;
}

// Splits "127.0.0.1:9100"; false when it is no address and port.
bool splitListen(const QString &text, QHostAddress &address, quint16 &port) {
    const qsizetype colon = text.lastIndexOf(u':');
    bool ok = false;
    port = text.mid(colon + 1).toUShort(&ok);
    return colon > 0 && ok && address.setAddress(text.left(colon));
}

// Interrupt and termination signals end the event loop.
void quitOnSignals(QCoreApplication &app) {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    const int descriptor = signalfd(-1, &signals, SFD_CLOEXEC);
    auto *notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, &app);
    QObject::connect(notifier, &QSocketNotifier::activated, &app, &QCoreApplication::quit);
}

}  // namespace

int main(int argc, char **argv) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(u"virtual-printer"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(NST_VERSION));
    quitOnSignals(app);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Serves a label printer in software, on a TCP port or a device file."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption listen(u"listen"_s, u"Address and port to listen on."_s,
                                    u"address:port"_s);
    const QCommandLineOption device(
        u"device"_s,
        u"Character device to serve, such as /dev/g_printer0 of a USB printer gadget."_s,
        u"device"_s);
    const QCommandLineOption profile(u"profile"_s, u"Description of the printer (JSON)."_s,
                                     u"file"_s);
    parser.addOptions({listen, device, profile});
    parser.process(app);
    if (!parser.positionalArguments().isEmpty())
        return fail(u"unexpected \"%1\""_s.arg(parser.positionalArguments().first()));

    if (parser.isSet(listen) == parser.isSet(device))
        return fail(u"wants one of --listen and --device"_s);
    QHostAddress address;
    quint16 port = 0;
    if (parser.isSet(listen) && !splitListen(parser.value(listen), address, port))
        return fail(u"--listen wants ADDRESS:PORT, such as 127.0.0.1:9100"_s);
    const ProfileResult result = profileFromFile(parser.value(profile));
    if (!result.profile) return fail(result.error);
    const auto printer = std::make_shared<VirtualPrinter>(*result.profile);

    VirtualPrinterServer server(printer);
    VirtualPrinterDevice served(printer, parser.value(device));
    if (parser.isSet(device)) {
        if (!served.open())
            return fail(u"%1: %2"_s.arg(parser.value(device), served.errorString()));
        std::printf("serving %s\n", qUtf8Printable(parser.value(device)));
    } else {
        if (!server.listen(address, port))
            return fail(u"%1: %2"_s.arg(parser.value(listen), server.errorString()));
        std::printf("listening on %s:%d\n", qUtf8Printable(address.toString()), server.port());
    }
    std::fflush(stdout);
    return QCoreApplication::exec();
}
