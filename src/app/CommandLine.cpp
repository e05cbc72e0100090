#include "app/CommandLine.h"

#include <QCoreApplication>
#include <cstring>

#include "platform/core/Texts.h"

std::optional<QString> commandLineAnswer(int argc, char **argv) {
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--version") == 0)
            return QStringLiteral("network-setting-tool " NST_VERSION);
        if (std::strcmp(argv[i], "--help") != 0) continue;
        const QCoreApplication texts(argc, argv);
        installTexts();
        return localized(QStringLiteral("DWT_Localize_CommandLine_Help"))
            .arg(QStringLiteral("network-setting-tool"));
    }
    return std::nullopt;
}

void applyOptions(int argc, char **argv) {
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--demo") == 0) qputenv("ZMLIB_PRINTERS", "demo");
}
