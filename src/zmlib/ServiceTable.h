#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <array>
#include <chrono>
#include <deque>
#include <map>
#include <optional>
#include <tuple>

#include "zmlib/Transport.h"

// The type of the services that count as printers.
inline constexpr const char *announcedType = "_pdl-datastream._tcp";

// Limits of a look for announced printers.
struct BrowsingLimits {
    // How long after the start of a source its list still waits for what is announced already: the
    // system's service says after a second that this was all.
    std::chrono::milliseconds firstLook{1200};
    // How long after a failure the system's service is looked for again.
    std::chrono::milliseconds reconnectAfter{500};
    // How many questions are under way at once: the service allows one program 1024 objects.
    std::size_t questionsAtOnce = 500;
    // How long an answer is taken as sure: half of the 120 s for which records of an address live.
    std::chrono::seconds sureFor{60};
    // How long after a question without an answer it is asked again.
    std::chrono::seconds askAgainAfter{10};
    // How long after the first answer of a printer its others are waited for.
    std::chrono::milliseconds moreAnswers{100};
};

// A printer that announces itself.
struct AnnouncedPrinter {
    QString uri;                // "dnssd:///NAME?type=_pdl-datastream._tcp&domain=DOMAIN"
    QString name;               // of the service, any text of at most 63 bytes of UTF-8
    QString productName;        // empty when it does not say
    QList<Endpoint> endpoints;  // where it was last found; the best first
};

// The services that are announced, where each was seen, its answers, and the questions to ask next.
// It does not ask itself. Used by one thread at a time.
class ServiceTable {
  public:
    using Clock = std::chrono::steady_clock;

    // Where a service was seen and which kind of address to ask for, in the numbers of avahi.
    struct Place {
        int interface;
        int protocol;
        int wanted;
        // A service seen over one version of IP has an address of it; it may lack one of the other.
        bool isSure() const { return wanted == protocol; }
        bool operator==(const Place &) const = default;
        bool operator<(const Place &other) const {
            return std::tie(interface, protocol, wanted) <
                   std::tie(other.interface, other.protocol, other.wanted);
        }
    };
    // The two kinds of address that can be asked for where a service was seen.
    using Places = std::array<Place, 2>;

    struct Question {
        QString uri;
        QByteArray name;
        QByteArray domain;
        Place place;
        bool isUrgent;
    };
    struct Answer {
        Endpoint endpoint;
        QString productName;
    };

    explicit ServiceTable(const BrowsingLimits &limits) : m_limits(limits) {}

    // A service is seen at a place; its sure address there is to be asked for.
    void add(const QByteArray &name, const QByteArray &domain, const Places &places);
    // It is seen there no more.
    void remove(const QByteArray &name, const QByteArray &domain, const Places &places);
    // Forgets everything, the questions under way included.
    void clear();

    // The services that have answered, sorted by name.
    QList<AnnouncedPrinter> printers() const;
    bool contains(const QString &uri) const { return m_services.contains(uri); }

    // Queues a question for every sure address whose answer is missing or has grown old.
    void askWhatIsUnsure();
    // Queues the questions for all addresses of one printer, before all others.
    void askFirst(const QString &uri);

    // The answers of a printer since `then`: IPv4 addresses first, then global, then link-local
    // IPv6 ones. `areAll` becomes false while others may follow.
    QList<Endpoint> answersSince(const QString &uri, Clock::time_point then, bool &areAll) const;

    // Whether no question is queued or under way.
    bool isSettled() const { return m_queue.empty() && m_underWay == 0; }

    // The next question, if one may be asked now. It is under way until answer() is called.
    std::optional<Question> takeQuestion();
    // Ends a question that was taken; `answer` is nothing when none came.
    void answer(const Question &question, std::optional<Answer> answer);

  private:
    struct Sighting {
        bool isAsked = false;               // a question is queued or under way
        Clock::time_point asked = {};       // when the last question ended
        std::optional<Answer> answer = {};  // to it
    };
    struct Service {
        QByteArray name;
        QByteArray domain;
        std::map<Place, Sighting> sightings;
    };

    void queue(const QString &uri, Service &service, const Place &place, bool isUrgent);
    Sighting *find(const Question &question);

    const BrowsingLimits m_limits;
    std::map<QString, Service> m_services;  // by URI
    std::deque<Question> m_queue;
    std::size_t m_underWay = 0;
};
