#include "discovery/MdnsSession.h"

#include "HandOver.h"
#include "discovery/MdnsTxt.h"
#include "discovery/ScanInterfaces.h"
#include "discovery/ServiceTypes.h"

#include <avahi-common/address.h>
#include <avahi-common/error.h>
#include <avahi-common/malloc.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

#include <net/if.h>

namespace ko {

namespace {

const unsigned MostResolvers = 50;
const unsigned MostWaiting = 20000; ///< for a resolver
const int ResolveTimeout = 10000;   // ms
const int PollTimeout = 200;        // ms
const int BatchSize = 500;
const std::chrono::seconds RetryInterval(2);
const std::chrono::milliseconds EndingPatience(500); // before it is said that a session waits for one

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

/// What sessions that were stopped, and have not ended yet, leave for the next one to wait for. A call to the
/// daemon that hangs can't be broken off; without this, everybody who presses the button again would leave
/// one more thread behind.
struct MdnsSession::Ending
{
    std::mutex mutex; ///< of all that the sessions share with the GUI thread; never held during a call
    std::condition_variable changed;
    int sessions = 0;

    static const std::shared_ptr<Ending>& all();
};

/// Kept by each session too: one may outlive everything else at the end of the program.
const std::shared_ptr<MdnsSession::Ending>& MdnsSession::Ending::all()
{
    static const std::shared_ptr<Ending> all = std::make_shared<Ending>();
    return all;
}

std::shared_ptr<MdnsSession> MdnsSession::begin(QObject& receiver, const Take& take, unsigned interfaces,
                                                int limit)
{
    auto session = std::make_shared<MdnsSession>(receiver, take, interfaces, limit);
    std::thread([session] { session->work(); }).detach();
    return session;
}

MdnsSession::MdnsSession(QObject& receiver, const Take& take, unsigned interfaces, int limit)
    : m_ending(Ending::all())
    , m_receiver(&receiver)
    , m_take(take)
    , m_interfaces(interfaces)
    , m_left(limit)
{
}

void MdnsSession::stop()
{
    {
        const std::lock_guard<std::mutex> lock(m_ending->mutex);
        m_stop = true;
        m_receiver = nullptr;
        ++m_ending->sessions;
        if (m_poll)
            avahi_simple_poll_wakeup(m_poll.get());
    }
    m_ending->changed.notify_all();
}

void MdnsSession::work()
{
    bool goOn = waitForEnding();
    while (goOn) {
        m_error = 0;
        serve();
        if (!m_stop)
            unavailable();
        goOn = pause();
    }
    {
        const std::lock_guard<std::mutex> lock(m_ending->mutex);
        --m_ending->sessions;
    }
    m_ending->changed.notify_all();
}

/// False when stopped meanwhile.
bool MdnsSession::waitForEnding()
{
    const auto isOver = [this] { return m_stop || m_ending->sessions == 0; };
    std::unique_lock<std::mutex> lock(m_ending->mutex);
    if (!m_ending->changed.wait_for(lock, EndingPatience, isOver)) {
        lock.unlock();
        post(ScannerState::Unavailable);
        lock.lock();
        m_ending->changed.wait(lock, isOver);
    }
    return !m_stop;
}

/// Until the next attempt; false when stopped.
bool MdnsSession::pause()
{
    std::unique_lock<std::mutex> lock(m_ending->mutex);
    return !m_ending->changed.wait_for(lock, RetryInterval, [this] { return m_stop.load(); });
}

/// One connection to the daemon, until it is lost or the scanner is stopped.
void MdnsSession::serve()
{
    setPoll(avahi_simple_poll_new());
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
    setPoll(nullptr);
}

void MdnsSession::setPoll(AvahiSimplePoll* poll)
{
    const std::lock_guard<std::mutex> lock(m_ending->mutex);
    m_poll.reset(poll);
}

bool MdnsSession::listen()
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

void MdnsSession::failed(int error)
{
    m_error = error != 0 ? error : int(AVAHI_ERR_FAILURE);
}

/// Said once until the daemon has been there again.
void MdnsSession::unavailable()
{
    if (!std::exchange(m_saidMissing, true))
        post(ScannerState::Unavailable, m_error);
}

void MdnsSession::post(ScannerState::Phase phase, int error)
{
    ScanReport report;
    report.devices = std::exchange(m_found, {});
    report.state.phase = phase;
    report.state.done = m_done;
    report.state.total = m_done + int(m_resolvers.size()) + int(m_waiting.size());
    report.error = error;
    m_changed = false;
    const auto deliver = [self = shared_from_this(), report] {
        if (self->m_receiver)
            self->m_take(report);
    };
    const std::lock_guard<std::mutex> lock(m_ending->mutex);
    if (m_receiver)
        handOver(m_receiver, deliver);
}

void MdnsSession::resolveNext()
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

void MdnsSession::dropLate()
{
    for (auto it = m_resolvers.begin(); it != m_resolvers.end() && !m_stop;) {
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

void MdnsSession::clientChanged(AvahiClient* client, AvahiClientState state, void* self)
{
    if (state == AVAHI_CLIENT_FAILURE)
        static_cast<MdnsSession*>(self)->failed(avahi_client_errno(client));
}

void MdnsSession::browsed(AvahiServiceBrowser* browser, AvahiIfIndex interface, AvahiProtocol protocol,
                          AvahiBrowserEvent event, const char* name, const char* type, const char* domain,
                          AvahiLookupResultFlags, void* self)
{
    auto* session = static_cast<MdnsSession*>(self);
    if (event == AVAHI_BROWSER_FAILURE)
        session->failed(avahi_client_errno(avahi_service_browser_get_client(browser)));
    if (event != AVAHI_BROWSER_NEW || !isScanned(session->m_interfaces, interface) ||
        session->m_waiting.size() >= MostWaiting)
        return;
    session->m_waiting.push_back({interface, protocol, name, type, domain});
    session->m_changed = true;
}

void MdnsSession::answered(AvahiServiceResolver* resolver, AvahiIfIndex interface, AvahiProtocol,
                           AvahiResolverEvent event, const char* name, const char* type, const char*,
                           const char*, const AvahiAddress* address, uint16_t port, AvahiStringList* txt,
                           AvahiLookupResultFlags, void* self)
{
    auto* session = static_cast<MdnsSession*>(self);
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
        session->resolved(resolver, &device);
    } else {
        session->resolved(resolver, nullptr);
    }
}

void MdnsSession::resolved(AvahiServiceResolver* resolver, const DiscoveredDevice* device)
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

} // namespace ko
