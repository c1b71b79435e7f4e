#include "discovery/MdnsScanner.h"

#include "discovery/MdnsTxt.h"
#include "discovery/ServiceTypes.h"
#include "ko/LogQt.h"

#include <QElapsedTimer>

#include <avahi-client/client.h>
#include <avahi-client/lookup.h>
#include <avahi-common/address.h>
#include <avahi-common/error.h>
#include <avahi-common/malloc.h>
#include <avahi-common/simple-watch.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <thread>

#include <net/if.h>

namespace ko {

namespace {

const unsigned MostResolvers = 50;
const unsigned MostWaiting = 20000; ///< for a resolver
const int ResolveTimeout = 10000;   // ms
const int PollTimeout = 200;        // ms
const int BatchSize = 500;
const std::chrono::seconds RetryInterval(2);

template <auto Free>
struct FreeWith
{
    template <class T>
    void operator()(T* object) const
    {
        Free(object);
    }
};

typedef std::unique_ptr<AvahiSimplePoll, FreeWith<avahi_simple_poll_free>> Poll;
typedef std::unique_ptr<AvahiClient, FreeWith<avahi_client_free>> Client;

struct Announcement
{
    AvahiIfIndex interface;
    AvahiProtocol protocol;
    QByteArray name;
    QByteArray type;
    QByteArray domain;
};

/// Interfaces beyond the bits are always in.
bool isIn(unsigned interfaces, AvahiIfIndex index)
{
    return index < 1 || index > 31 || (interfaces & (1u << (index - 1)));
}

QString textOf(const AvahiAddress& address, AvahiIfIndex interface)
{
    char text[AVAHI_ADDRESS_STR_MAX];
    QString result = QString::fromLatin1(avahi_address_snprint(text, sizeof text, &address));
    char name[IF_NAMESIZE];
    if (result.startsWith(QLatin1String("fe80"), Qt::CaseInsensitive) && interface > 0 &&
        if_indextoname(unsigned(interface), name))
        result += QLatin1Char('%') + QString::fromLocal8Bit(name);
    return result;
}

} // namespace

/// Everything that talks to the daemon, in a thread of its own: each such call waits for an answer.
class MdnsScanner::Worker
{
public:
    Worker(MdnsScanner& scanner, int run, unsigned interfaces, int limit)
        : m_scanner(scanner)
        , m_run(run)
        , m_interfaces(interfaces)
        , m_left(limit)
        , m_thread([this] { work(); })
    {
    }

    ~Worker()
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_stop = true;
            if (m_poll)
                avahi_simple_poll_wakeup(m_poll.get());
        }
        m_wake.notify_all();
        m_thread.join();
    }

private:
    void work();
    void serve();
    bool listen();
    void failed(int error);
    void unavailable();
    void post(ScannerState::Phase phase);
    void resolveNext();
    void dropLate();
    void resolved(AvahiServiceResolver* resolver, const DiscoveredDevice* device);

    static void clientChanged(AvahiClient* client, AvahiClientState state, void* self);
    static void browsed(AvahiServiceBrowser* browser, AvahiIfIndex interface, AvahiProtocol protocol,
                        AvahiBrowserEvent event, const char* name, const char* type, const char* domain,
                        AvahiLookupResultFlags, void* self);
    static void answered(AvahiServiceResolver* resolver, AvahiIfIndex interface, AvahiProtocol protocol,
                         AvahiResolverEvent event, const char* name, const char* type, const char* domain,
                         const char* host, const AvahiAddress* address, uint16_t port, AvahiStringList* txt,
                         AvahiLookupResultFlags, void* self);

    MdnsScanner& m_scanner;
    const int m_run;
    const unsigned m_interfaces;
    int m_left; ///< devices to report; below 0 for no limit
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::atomic<bool> m_stop{false};
    Poll m_poll; ///< made and freed under the mutex
    Client m_client;
    int m_error = 0;
    bool m_saidMissing = false;
    std::deque<Announcement> m_waiting;
    std::map<AvahiServiceResolver*, QElapsedTimer> m_resolvers;
    QVector<DiscoveredDevice> m_found;
    int m_done = 0;
    bool m_changed = false;
    std::thread m_thread; ///< last, so that it begins when all else is there
};

void MdnsScanner::Worker::work()
{
    while (!m_stop) {
        m_error = 0;
        serve();
        if (m_stop)
            return;
        unavailable();
        std::unique_lock<std::mutex> lock(m_mutex);
        m_wake.wait_for(lock, RetryInterval, [this] { return m_stop.load(); });
    }
}

/// One connection to the daemon, until it is lost or the scanner is stopped.
void MdnsScanner::Worker::serve()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_poll.reset(avahi_simple_poll_new());
    }
    if (m_poll && listen()) {
        m_saidMissing = false;
        post(ScannerState::Running);
        while (!m_stop && m_error == 0 && avahi_simple_poll_iterate(m_poll.get(), PollTimeout) == 0) {
            dropLate();
            resolveNext();
            if (m_changed)
                post(ScannerState::Running);
        }
    }
    m_resolvers.clear(); // the client frees them, and the browsers
    m_waiting.clear();
    m_client.reset();
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_poll.reset();
}

bool MdnsScanner::Worker::listen()
{
    int error = 0;
    m_client.reset(avahi_client_new(avahi_simple_poll_get(m_poll.get()), AvahiClientFlags(0), clientChanged,
                                    this, &error));
    if (!m_client) {
        failed(error);
        return false;
    }
    for (const ServiceType& service : serviceTypes) {
        if (m_stop)
            return true;
        if (!avahi_service_browser_new(m_client.get(), AVAHI_IF_UNSPEC, AVAHI_PROTO_UNSPEC, service.type,
                                       nullptr, AvahiLookupFlags(0), browsed, this)) {
            failed(avahi_client_errno(m_client.get()));
            return false;
        }
    }
    return true;
}

void MdnsScanner::Worker::failed(int error)
{
    m_error = error != 0 ? error : int(AVAHI_ERR_FAILURE);
}

/// Said once until the daemon has been there again.
void MdnsScanner::Worker::unavailable()
{
    if (m_saidMissing)
        return;
    m_saidMissing = true;
    LogQt::line(LogQt::Warning, QString::fromLatin1("The mDNS scan waits for the Avahi daemon: %1")
                                    .arg(QString::fromUtf8(avahi_strerror(m_error))));
    post(ScannerState::Unavailable);
}

void MdnsScanner::Worker::post(ScannerState::Phase phase)
{
    ScannerState state;
    state.phase = phase;
    state.done = m_done;
    state.total = m_done + int(m_resolvers.size()) + int(m_waiting.size());
    state.where = MdnsScanner::tr("all interfaces");
    if (phase == ScannerState::Unavailable)
        state.reason = MdnsScanner::tr("the Avahi daemon is not running");
    m_changed = false;
    const auto deliver = [scanner = &m_scanner, run = m_run, state, found = std::exchange(m_found, {})] {
        if (run != scanner->m_run)
            return;
        if (!found.isEmpty())
            emit scanner->found(found);
        if (run == scanner->m_run) // its receiver may have stopped it
            scanner->setState(state);
    };
    QMetaObject::invokeMethod(&m_scanner, deliver, Qt::QueuedConnection);
}

void MdnsScanner::Worker::resolveNext()
{
    while (m_error == 0 && !m_stop && !m_waiting.empty() && m_resolvers.size() < MostResolvers) {
        const Announcement next = std::move(m_waiting.front());
        m_waiting.pop_front();
        AvahiServiceResolver* resolver = avahi_service_resolver_new(
            m_client.get(), next.interface, next.protocol, next.name.constData(), next.type.constData(),
            next.domain.constData(), next.protocol, AvahiLookupFlags(0), answered, this);
        m_changed = true;
        if (resolver)
            m_resolvers[resolver].start();
        else // one that the daemon does not like must not end the others
            ++m_done;
    }
}

void MdnsScanner::Worker::dropLate()
{
    for (auto it = m_resolvers.begin(); it != m_resolvers.end();) {
        if (!it->second.hasExpired(ResolveTimeout)) {
            ++it;
            continue;
        }
        avahi_service_resolver_free(it->first);
        it = m_resolvers.erase(it);
        ++m_done;
        m_changed = true;
    }
}

void MdnsScanner::Worker::clientChanged(AvahiClient* client, AvahiClientState state, void* self)
{
    if (state == AVAHI_CLIENT_FAILURE)
        static_cast<Worker*>(self)->failed(avahi_client_errno(client));
}

void MdnsScanner::Worker::browsed(AvahiServiceBrowser* browser, AvahiIfIndex interface,
                                  AvahiProtocol protocol, AvahiBrowserEvent event, const char* name,
                                  const char* type, const char* domain, AvahiLookupResultFlags, void* self)
{
    auto* worker = static_cast<Worker*>(self);
    if (event == AVAHI_BROWSER_FAILURE)
        worker->failed(avahi_client_errno(avahi_service_browser_get_client(browser)));
    if (event != AVAHI_BROWSER_NEW || !isIn(worker->m_interfaces, interface) ||
        worker->m_waiting.size() >= MostWaiting)
        return;
    worker->m_waiting.push_back({interface, protocol, name, type, domain});
    worker->m_changed = true;
}

void MdnsScanner::Worker::answered(AvahiServiceResolver* resolver, AvahiIfIndex interface, AvahiProtocol,
                                   AvahiResolverEvent event, const char* name, const char* type, const char*,
                                   const char*, const AvahiAddress* address, uint16_t port,
                                   AvahiStringList* txt, AvahiLookupResultFlags, void* self)
{
    auto* worker = static_cast<Worker*>(self);
    if (event == AVAHI_RESOLVER_FOUND && address) {
        DiscoveredDevice device;
        device.name = QString::fromUtf8(name);
        device.service = QString::fromLatin1(type);
        device.address = textOf(*address, interface);
        device.port = port;
        for (AvahiStringList* entry = txt; entry; entry = avahi_string_list_get_next(entry))
            readMdnsTxt(QByteArray(reinterpret_cast<const char*>(avahi_string_list_get_text(entry)),
                                   int(avahi_string_list_get_size(entry))),
                        device);
        worker->resolved(resolver, &device);
    } else {
        worker->resolved(resolver, nullptr);
    }
}

void MdnsScanner::Worker::resolved(AvahiServiceResolver* resolver, const DiscoveredDevice* device)
{
    m_resolvers.erase(resolver);
    avahi_service_resolver_free(resolver);
    ++m_done;
    m_changed = true;
    if (device && m_left != 0) {
        m_found.append(*device);
        m_left -= m_left > 0 ? 1 : 0;
    }
    if (m_found.size() >= BatchSize)
        post(ScannerState::Running);
}

MdnsScanner::MdnsScanner(QObject* parent)
    : Scanner(parent)
{
}

MdnsScanner::~MdnsScanner()
{
    ++m_run;
    m_worker.reset();
}

QString MdnsScanner::name() const
{
    return QLatin1String("mDNS");
}

void MdnsScanner::start(unsigned interfaces, int limit)
{
    if (m_worker)
        return;
    ScannerState state;
    state.phase = ScannerState::Running;
    state.where = tr("all interfaces");
    m_worker = std::make_unique<Worker>(*this, ++m_run, interfaces, limit);
    setState(state);
}

void MdnsScanner::stop()
{
    if (!m_worker)
        return;
    ++m_run;
    m_worker.reset();
    ScannerState state = m_state;
    state.phase = ScannerState::Cancelled;
    state.reason.clear();
    setState(state);
}

ScannerState MdnsScanner::state() const
{
    return m_state;
}

void MdnsScanner::setState(const ScannerState& state)
{
    m_state = state;
    emit stateChanged();
}

} // namespace ko
