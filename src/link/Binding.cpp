#include "link/Binding.h"

#include <mutex>

#include "zmlib/CatalogueSource.h"
#include "zmlib/NetworkSource.h"
#include "zmlib/UsbSource.h"

namespace {

std::mutex mutex;
std::shared_ptr<ZMLib> library;

std::shared_ptr<ZMLib> libraryOfEnvironment() {
    if (!listsCatalogue()) {
        std::vector<std::unique_ptr<PrinterSource>> sources;
        sources.push_back(std::make_unique<UsbSource>());
        sources.push_back(std::make_unique<NetworkSource>());
        return std::make_shared<PrinterLibrary>(std::move(sources));
    }
    return catalogueLibrary(catalogueFromEnvironment());
}

}  // namespace

bool listsCatalogue() {
    return !qEnvironmentVariable("ZMLIB_PRINTERS").isEmpty();
}

std::shared_ptr<ZMLib> installedLibrary() {
    const std::lock_guard lock(mutex);
    if (!library) library = libraryOfEnvironment();
    return library;
}

void installLibrary(std::shared_ptr<ZMLib> replacement) {
    const std::lock_guard lock(mutex);
    library = std::move(replacement);
}
