#ifndef KO_MDNSSESSION_H
#define KO_MDNSSESSION_H

#include "discovery/ScanSession.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QVector>

#include <avahi-client/client.h>
#include <avahi-client/lookup.h>
#include <avahi-common/simple-watch.h>

#include <atomic>
#include <deque>
#include <map>
#include <memory>

namespace ko {

/// Everything that talks to the daemon, from start() to stop(), in a thread of its own: each call waits for
/// an answer, up to 25 seconds when the daemon hangs. So nobody waits for the thread. It owns the session
/// together with whoever began it, and uses nothing that ends before the program does.
class MdnsSession : public ScanSession, public std::enable_shared_from_this<MdnsSession>
{
public:
    /// \a take is called in the thread of \a receiver, which lives until stop(). Others as Scanner::start().
    static std::shared_ptr<MdnsSession> begin(QObject& receiver, const Take& take, unsigned interfaces,
                                              int limit);

    /// By begin() only.
    MdnsSession(QObject& receiver, const Take& take, unsigned interfaces, int limit);

    /// The thread ends by itself.
    void stop() override;

private:
    struct Ending;
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

    void work();
    bool waitForEnding();
    bool pause();
    void serve();
    bool listen();
    void setPoll(AvahiSimplePoll* poll);
    void failed(int error);
    void unavailable();
    void post(ScannerState::Phase phase, int error = 0);
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

    const std::shared_ptr<Ending> m_ending;
    std::atomic<bool> m_stop{false};
    QObject* m_receiver; ///< null when stopped; changed under the mutex, as is m_poll
    Take m_take;
    Poll m_poll;
    const unsigned m_interfaces;
    int m_left; ///< devices to report; below 0 for no limit
    Client m_client;
    int m_error = 0;
    bool m_saidMissing = false;
    std::deque<Announcement> m_waiting;
    std::map<AvahiServiceResolver*, QElapsedTimer> m_resolvers;
    QVector<DiscoveredDevice> m_found;
    int m_done = 0;
    bool m_changed = false;
};

} // namespace ko

#endif
