#pragma once

#include <atomic>

#include "zmlib/CatalogueSource.h"
#include "zmlib/PrinterLibrary.h"
#include "zmlib/PrinterSource.h"

// One printer that is there or not, and of which every opening has the same result.
class PluggedSource : public PrinterSource {
  public:
    struct State {
        std::atomic<bool> plugged = true;
        std::atomic<int> result = ZMLib::NoPermission;
        std::atomic<int> openings = 0;
    };
    explicit PluggedSource(State &state) : m_state(state) {}

    Listing list() override {
        m_listed = m_state.plugged;
        if (!m_listed) return {};
        return {{{{PrinterKey::DeviceURI, uri},
                  {PrinterKey::ConnectionType, PrinterConnection::USB},
                  {PrinterKey::ProductName, QStringLiteral("Larkfield L400")},
                  {PrinterKey::SerialNumber, QStringLiteral("A0017")}}},
                {}};
    }
    bool hasChanged() override { return m_listed != m_state.plugged; }
    bool lists(const QString &wanted) override { return m_state.plugged && wanted == uri; }
    Opened open(const QString &wanted, const QDeadlineTimer &) override {
        if (!lists(wanted)) return {};
        ++m_state.openings;
        return {nullptr, m_state.result};
    }

  private:
    const QString uri = QStringLiteral("usb:///Larkfield/L400?serial=A0017");
    State &m_state;
    bool m_listed = false;
};

// A library of the printers of a catalogue and of such a one.
inline std::shared_ptr<PrinterLibrary> libraryWith(const Catalogue &catalogue,
                                                   PluggedSource::State &state) {
    std::vector<std::unique_ptr<PrinterSource>> sources;
    sources.push_back(std::make_unique<CatalogueSource>(catalogue));
    sources.push_back(std::make_unique<PluggedSource>(state));
    return std::make_shared<PrinterLibrary>(std::move(sources));
}
