// Starts an empty window and the tool in turn and prints the medians of the time to the first
// painted window and of the resident memory half a second later; beside it, what looking for real
// printers adds to that time.

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
    QList<Start> empty, tool, real;
    for (int i = 0; i < rounds; ++i) {
        empty << startOnce(folder + QStringLiteral("/start-empty"), {});
        tool << startOnce(folder + QStringLiteral("/start-tool"), QStringLiteral("demo"));
        real << startOnce(folder + QStringLiteral("/start-tool"), {});
    }
    const double time[] = {median(empty, &Start::milliseconds), median(tool, &Start::milliseconds)};
    const double memory[] = {median(empty, &Start::mebibytes), median(tool, &Start::mebibytes)};
    std::printf("first window: empty %.1f ms, tool %.1f ms, ratio %.2f\n", time[0], time[1],
                time[1] / time[0]);
    std::printf("first window on real printers: %.1f ms more\n",
                median(real, &Start::milliseconds) - time[1]);
    std::printf("resident memory: empty %.1f MiB, tool %.1f MiB, ratio %.2f\n", memory[0],
                memory[1], memory[1] / memory[0]);
    return 0;
}
