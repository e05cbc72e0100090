#include "app/CommandLine.h"

#include <QCoreApplication>
#include <cstdio>
#include <cstring>

#include "link/Binding.h"
#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

std::optional<QString> commandLineAnswer(int argc, char **argv) {
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--version") == 0)
            return QStringLiteral("network-setting-tool " NST_VERSION);
        if (std::strcmp(argv[i], "--help") != 0) continue;
        const QCoreApplication texts(argc, argv);
        installTexts();
        return localized("DWT_Localize_CommandLine_Help").arg(u"network-setting-tool"_s);
    }
    return std::nullopt;
}

void applyOptions(int argc, char **argv) {
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--demo") == 0) qputenv("ZMLIB_PRINTERS", "demo");
}

void sayProblemsOfCatalogue() {
    if (!listsCatalogue()) return;
    const auto library = installedLibrary();
    library->ZMCreatePrinterURI();
    for (const PrinterProblem &problem : library->problems())
        if (problem.kind == PrinterProblem::BadFile)
            std::fprintf(stderr, "%s\n", qUtf8Printable(terminalText(problem.subject)));
}
