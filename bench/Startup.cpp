// Starts an empty window, a plain one like the tool's first, and the tool in turn, and prints the
// medians of the time to the first painted window and of the resident memory half a second later,
// with the tool's ratio to either; beside it, what looking for real printers adds to that time.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <cstdio>

namespace {

constexpr int rounds = 21;

struct Start {
    double milliseconds;
    double mebibytes;
};

// `printers` is what ZMLIB_PRINTERS holds.
Start startOnce(const QString &program, const QString &printers) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ZMLIB_PRINTERS"), printers);
    process.setProcessEnvironment(environment);
    QElapsedTimer clock;
    clock.start();
    process.start(program, {});
    if (!process.waitForReadyRead(10000)) qFatal("%s shows no window", qPrintable(program));
    const double time = double(clock.nsecsElapsed()) / 1e6;
    QThread::msleep(500);
    QFile status(QStringLiteral("/proc/%1/status").arg(process.processId()));
    if (!status.open(QIODevice::ReadOnly)) qFatal("%s has ended", qPrintable(program));
    double memory = 0;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:")) memory = line.mid(6).simplified().split(' ')[0].toDouble();
    process.kill();
    process.waitForFinished();
    return {time, memory / 1024};
}

double median(const QList<Start> &starts, double Start::*value) {
    QList<double> values;
    for (const Start &start : starts) values << start.*value;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir runtime;  // beside a tool that runs already
    qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    const QString folder = QCoreApplication::applicationDirPath();
    QList<Start> empty, plain, tool, real;
    for (int i = 0; i < rounds; ++i) {
        empty << startOnce(folder + QStringLiteral("/start-empty"), {});
        plain << startOnce(folder + QStringLiteral("/start-plain"), {});
        tool << startOnce(folder + QStringLiteral("/start-tool"), QStringLiteral("demo"));
        real << startOnce(folder + QStringLiteral("/start-tool"), {});
    }
    const auto print = [&](const char *what, double Start::*value, const char *unit) {
        const double ours = median(tool, value);
        std::printf("%s: empty %.1f %s, plain %.1f %s, tool %.1f %s, ratio %.2f and %.2f\n", what,
                    median(empty, value), unit, median(plain, value), unit, ours, unit,
                    ours / median(empty, value), ours / median(plain, value));
    };
    print("first window", &Start::milliseconds, "ms");
    print("resident memory", &Start::mebibytes, "MiB");
    std::printf("first window on real printers: %.1f ms more\n",
                median(real, &Start::milliseconds) - median(tool, &Start::milliseconds));
    return 0;
}
