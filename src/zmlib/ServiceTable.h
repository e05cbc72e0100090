#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <array>
#include <chrono>
#include <map>
#include <optional>
#include <tuple>
#include <vector>

#include "zmlib/Transport.h"

// The type of the services that count as printers.
inline constexpr const char *announcedType = "_pdl-datastream._tcp";

// Limits of a look for announced printers.
struct BrowsingLimits {
    // How long a list is not settled because the system's service has not said that this was all,
    // which takes it a second, and how long because one printer does not say where it is.
    std::chrono::milliseconds firstLook{1200};
    // How long after a failure the system's service is looked for again.
    std::chrono::milliseconds reconnectAfter{500};
    // How long the system's service may leave a call unanswered before it counts as silent.
    std::chrono::milliseconds silentAfter{1200};
    // How long after its last answer it is asked whether it still answers.
    std::chrono::milliseconds pingAfter{1000};
    // How many questions are under way at once. Of more, the service loses answers when many
    // printers are announced: of 1,339 that it knew, a list of 3 s had 231 at 500, 1,142 at 100.
    std::size_t questionsAtOnce = 50;
    // So many printers are kept by a service with its usual settings, which keeps 4,096 records, of
    // which a printer has up to five; beyond, it drops some, and nobody can ask it which.
    qsizetype surelyKept = 800;
    // How long a question is waited for while others wait that have not been asked in vain.
    std::chrono::milliseconds giveUpAfter{500};
    // How long an answer is taken as sure: half of the 120 s for which records of an address live.
    std::chrono::seconds sureFor{60};
    // How long after a question without an answer it is asked again.
    std::chrono::seconds askAgainAfter{10};
    // How long after the first answer of a printer its others are waited for.
    std::chrono::milliseconds moreAnswers{100};
};

// A printer that announces itself.
struct AnnouncedPrinter {
    // "dnssd:///NAME?type=_pdl-datastream._tcp&domain=DOMAIN"; while printers of several hosts
    // have that name, each has "&host=HOST" behind it.
    QString uri;
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
        // A service has most likely an address of the version of IP over which it was seen.
        bool isLikely() const { return wanted == protocol; }
        bool operator==(const Place &) const = default;
        bool operator<(const Place &other) const {
            return std::tie(interface, protocol, wanted) <
                   std::tie(other.interface, other.protocol, other.wanted);
        }
    };
    // The two kinds of address that can be asked for where a service was seen.
    using Places = std::array<Place, 2>;

    struct Question {
        quint64 number;  // never that of another one
        QString uri;
        QByteArray name;
        QByteArray domain;
        Place place;
    };
    struct Answer {
        Endpoint endpoint;
        QByteArray host;
        QString productName;
    };

    explicit ServiceTable(const BrowsingLimits &limits) : m_limits(limits) {}

    // A service is seen at a place; its likely address there is to be asked for.
    void add(const QByteArray &name, const QByteArray &domain, const Places &places);
    // It is seen there no more.
    void remove(const QByteArray &name, const QByteArray &domain, const Places &places);
    // Forgets everything, the questions under way included.
    void clear();

    // The services that have answered, sorted by name, one for each host of an answer.
    QList<AnnouncedPrinter> printers() const;
    // How many services have not answered.
    qsizetype notLocated() const;
    // Whether a service is announced; of a host, whether it has answered from there.
    bool contains(const QString &uri) const;
    // Whether every service has an answer, or one of its questions has ended or is under way for
    // longer than a first look.
    bool isSettled() const;

    // Queues a question for every likely address whose answer is missing or has grown old.
    void askWhatIsUnsure();
    // Queues the questions for all addresses of one printer, before all others.
    void askFirst(const QString &uri);

    // The answers of a printer since `then`, all of one host (without one in the URI, the first by
    // name): IPv4 addresses first, then global, then link-local IPv6 ones. `areAll` becomes false
    // while others may follow.
    QList<Endpoint> answersSince(const QString &uri, Clock::time_point then, bool &areAll) const;

    // The next question, if one may be asked now. It is under way until it ends. First come those
    // for an opening, then those of services without an answer; what was asked in vain comes last.
    std::optional<Question> takeQuestion();
    // Ends a question that was taken; `answer` is nothing when none came.
    void answer(const Question &question, std::optional<Answer> answer);
    // Ends questions without an answer in favour of others that wait, and queues them again. The
    // numbers of those that were ended.
    std::vector<quint64> giveUp();
    // In how long giveUp() would end a question; nothing while none waits for another to end.
    std::optional<std::chrono::milliseconds> giveUpIn() const;

  private:
    // Where a question stands in the queue: the least comes first.
    struct Turn {
        bool canWait;    // false: for an opening
        bool wasInVain;  // the last question there had no answer
        bool isLocated;  // its service has an answer
        int protocol;    // IPv4 is the lesser
        quint64 number;  // of the question
        bool operator<(const Turn &other) const {
            const auto ranks = [](const Turn &one) {
                return std::tie(one.canWait, one.wasInVain, one.isLocated, one.protocol,
                                one.number);
            };
            return ranks(*this) < ranks(other);
        }
    };
    struct Sighting {
        std::optional<Turn> turn = {};         // of the question that is queued
        std::optional<quint64> underWay = {};  // the number of the question
        bool wasInVain = false;                // the last question
        Clock::time_point asked = {};          // when the last question ended
        std::optional<Answer> answer = {};     // to it
    };
    struct Service {
        QByteArray name;
        QByteArray domain;
        std::map<Place, Sighting> sightings;
    };
    struct UnderWay {
        QString uri;
        Place place;
        bool canWait;
        Clock::time_point since;
    };

    static bool isLocated(const Service &service);
    // Whether what is asked for there would not come before what the interface answered lately.
    bool isNeedless(const Service &service, const Place &place) const;
    void queue(const QString &uri, Service &service, const Place &place, bool canWait);
    void unqueue(Sighting &sighting);
    // The sighting that a question under way is about, which then is so no more; null when it has
    // gone meanwhile.
    Sighting *end(quint64 number, const QString &uri, const Place &place);
    // Whether a question waits for a slot that was not asked in vain before.
    bool isOneWaiting() const;

    const BrowsingLimits m_limits;
    std::map<QString, Service> m_services;  // by URI
    std::map<Turn, Question> m_queue;
    std::map<quint64, UnderWay> m_underWay;  // by number, so the oldest first
    quint64 m_lastNumber = 0;
};
