#pragma once

#include <QSet>
#include <limits>

#include "zmlib/Catalogue.h"
#include "zmlib/PrinterLibrary.h"
#include "zmlib/PrinterSource.h"

// The printers of a catalogue, each over the transport of its URI.
class CatalogueSource : public PrinterSource {
  public:
    explicit CatalogueSource(Catalogue catalogue);

    Listing list() override;
    bool lists(const QString &uri) override { return m_listed.contains(uri); }
    Opened open(const QString &uri, const QDeadlineTimer &deadline) override;
    // Asks another machine only for its own address, since silence costs time.
    QStringList mayHave(const QString &address) override;

  private:
    const Catalogue m_catalogue;
    QSet<QString> m_listed;  // the URIs of the catalogue
};

// A library of which a catalogue is the only source; `longestWait` as PrinterLibrary takes it.
std::shared_ptr<PrinterLibrary> catalogueLibrary(Catalogue catalogue,
                                                 int longestWait = std::numeric_limits<int>::max());
