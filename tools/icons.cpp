// Renders the application's icon in the usual sizes: icons SVG FOLDER. docs/screenshots.md names
// the command.

#include <QGuiApplication>
#include <QIcon>

int main(int argc, char **argv) {
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) qFatal("icons SVG FOLDER");
    const QIcon icon(arguments[1]);
    for (const int size : {16, 24, 32, 48, 64, 128, 256, 512}) {
        const QString file =
            QStringLiteral("%1/network-setting-tool-%2.png").arg(arguments[2]).arg(size);
        if (!icon.pixmap(QSize(size, size), 1.0).toImage().scaled(size, size).save(file))
            qFatal("cannot write %s", qPrintable(file));
    }
    return 0;
}
