#pragma once

#include <chrono>
#include <mutex>

#include "zmlib/PrinterSource.h"
#include "zmlib/ServiceBrowser.h"

// The printers that announce themselves on the network.
class NetworkSource : public PrinterSource {
  public:
    // How long after the start of the source a list still waits for what is announced already:
    // the system's service tells after a second that this was all.
    static constexpr std::chrono::milliseconds firstLook{1200};

    Listing list() override;
    bool hasChanged() override;
    bool lists(const QString &uri) override;
    Opened open(const QString &uri, const QDeadlineTimer &deadline) override;
    bool isOnThisNetwork() const override { return true; }
    std::optional<QList<QHostAddress>> addressesOf(const QString &uri,
                                                   const QDeadlineTimer &deadline) override;

  private:
    Listing announced() const;

    ServiceBrowser m_browser;
    const QDeadlineTimer m_firstLook{firstLook};
    std::mutex m_mutex;  // guards what follows
    Listing m_listed;
};
