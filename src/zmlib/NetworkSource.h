#pragma once

#include <mutex>

#include "zmlib/PrinterSource.h"
#include "zmlib/ServiceBrowser.h"

// The printers that announce themselves on the network.
class NetworkSource : public PrinterSource {
  public:
    // The part of an opening's time after which an address is needed: the rest is for connecting.
    static constexpr int resolvingShare = 2;

    explicit NetworkSource(const BrowsingLimits &limits = {})
        : m_browser(limits), m_surelyKept(limits.surelyKept) {}

    Listing list() override;
    bool isSettled() override { return m_browser.isSettled(); }
    bool hasChanged() override;
    bool lists(const QString &uri) override { return m_browser.isAnnounced(uri); }
    Opened open(const QString &uri, const QDeadlineTimer &deadline) override;
    bool isOnThisNetwork() const override { return true; }
    std::optional<QList<QHostAddress>> addressesOf(const QString &uri,
                                                   const QDeadlineTimer &deadline) override;

  private:
    Listing announced() const;

    ServiceBrowser m_browser;
    const qsizetype m_surelyKept;
    std::mutex m_mutex;  // guards what follows
    Listing m_listed;
};
