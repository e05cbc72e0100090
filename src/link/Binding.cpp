#include "link/Binding.h"

#include <cstdio>
#include <mutex>

#include "platform/core/Texts.h"
#include "zmlib/Catalogue.h"
#include "zmlib/CatalogueLibrary.h"

namespace {

std::mutex mutex;
std::shared_ptr<ZMLib> library;

std::shared_ptr<ZMLib> libraryOfEnvironment() {
    Catalogue catalogue = catalogueFromEnvironment();
    for (const QString &problem : std::as_const(catalogue.problems))
        std::fprintf(stderr, "%s\n", qUtf8Printable(terminalText(problem)));
    return std::make_shared<CatalogueLibrary>(std::move(catalogue));
}

}  // namespace

std::shared_ptr<ZMLib> installedLibrary() {
    const std::lock_guard lock(mutex);
    if (!library) library = libraryOfEnvironment();
    return library;
}

void installLibrary(std::shared_ptr<ZMLib> replacement) {
    const std::lock_guard lock(mutex);
    library = std::move(replacement);
}
