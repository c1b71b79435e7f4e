#include "Announcer.h"

#include "Say.h"

#include <avahi-common/address.h>
#include <avahi-common/alternative.h>
#include <avahi-common/error.h>
#include <avahi-common/malloc.h>
#include <avahi-common/strlst.h>

#include <arpa/inet.h>

namespace kosim {

namespace {

const int RetryInterval = 2000; // ms
const int MostNames = 5;        // tried for one device

/// Other threads wait meanwhile; a null poll is for what happens before it runs.
class Lock
{
public:
    explicit Lock(AvahiThreadedPoll* poll)
        : m_poll(poll)
    {
        avahi_threaded_poll_lock(m_poll);
    }
    ~Lock() { avahi_threaded_poll_unlock(m_poll); }
    Q_DISABLE_COPY(Lock)

private:
    AvahiThreadedPoll* const m_poll;
};

AvahiStringList* listOf(const QVector<QByteArray>& entries)
{
    AvahiStringList* list = nullptr;
    for (const QByteArray& entry : entries)
        list = avahi_string_list_add_arbitrary(list, reinterpret_cast<const uint8_t*>(entry.constData()),
                                               size_t(entry.size()));
    return avahi_string_list_reverse(list);
}

} // namespace

Announcer::Announcer(int interface)
    : m_interface(interface)
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &Announcer::open);
}

Announcer::~Announcer()
{
    close();
}

void Announcer::announce(const QVector<Announcement>& announcements)
{
    m_announcements = announcements;
    if (!m_poll && !m_retry.isActive()) {
        open();
    } else if (m_isRunning) {
        dropGroups();
        publish();
    }
}

void Announcer::open()
{
    int error = AVAHI_ERR_NO_MEMORY;
    ++m_opened;
    m_poll = avahi_threaded_poll_new();
    if (m_poll)
        m_client = avahi_client_new(avahi_threaded_poll_get(m_poll), AVAHI_CLIENT_NO_FAIL, clientChanged,
                                    this, &error);
    if (m_client && avahi_threaded_poll_start(m_poll) == 0)
        return;
    close();
    waitForDaemon(error);
    m_retry.start(RetryInterval);
}

void Announcer::close()
{
    m_isRunning = false;
    if (m_client && m_poll)
        avahi_threaded_poll_stop(m_poll);
    m_groups.clear(); // they go with the client
    if (m_client)
        avahi_client_free(m_client);
    if (m_poll)
        avahi_threaded_poll_free(m_poll);
    m_client = nullptr;
    m_poll = nullptr;
    ++m_opened;
}

void Announcer::waitForDaemon(int error)
{
    if (!m_saidMissing)
        say(QStringLiteral("waiting for the Avahi daemon: %1").arg(QString::fromUtf8(avahi_strerror(error))));
    m_saidMissing = true;
    count();
}

/// In Avahi's thread, as the next.
void Announcer::clientChanged(AvahiClient*, AvahiClientState state, void* self)
{
    auto* announcer = static_cast<Announcer*>(self);
    const int opened = announcer->m_opened;
    QMetaObject::invokeMethod(
        announcer,
        [announcer, opened, state] {
            if (opened == announcer->m_opened)
                announcer->clientIs(state);
        },
        Qt::QueuedConnection);
}

void Announcer::groupChanged(AvahiEntryGroup* group, AvahiEntryGroupState state, void* self)
{
    auto* announcer = static_cast<Announcer*>(self);
    const int opened = announcer->m_opened;
    QMetaObject::invokeMethod(
        announcer,
        [announcer, opened, group, state] {
            if (opened == announcer->m_opened)
                announcer->groupIs(group, state);
        },
        Qt::QueuedConnection);
}

void Announcer::clientIs(AvahiClientState state)
{
    m_isRunning = state == AVAHI_CLIENT_S_RUNNING;
    if (state == AVAHI_CLIENT_FAILURE) {
        const int error = avahi_client_errno(m_client);
        close();
        waitForDaemon(error);
        m_retry.start(RetryInterval);
        return;
    }
    dropGroups();
    if (state == AVAHI_CLIENT_CONNECTING)
        waitForDaemon(AVAHI_ERR_NO_DAEMON);
    if (!m_isRunning)
        return;
    m_saidMissing = false;
    publish();
}

void Announcer::dropGroups()
{
    const Lock lock(m_poll);
    for (const auto& group : m_groups)
        avahi_entry_group_free(group.first);
    m_groups.clear();
    count();
}

void Announcer::publish()
{
    const Lock lock(m_poll);
    for (int i = 0; i < int(m_announcements.size()); ++i) {
        AvahiEntryGroup* group = avahi_entry_group_new(m_client, groupChanged, this);
        int error = avahi_client_errno(m_client);
        if (group) {
            m_groups[group].announcement = i;
            error = fill(group, m_announcements.at(i));
        }
        if (error < 0)
            say(QStringLiteral("cannot announce %1: %2")
                    .arg(QString::fromUtf8(m_announcements.at(i).name),
                         QString::fromUtf8(avahi_strerror(error))));
    }
}

/// Below 0 when the daemon does not take it.
int Announcer::fill(AvahiEntryGroup* group, const Announcement& announcement) const
{
    const QByteArray host = announcement.hostName + ".local";
    int error = 0;
    if (!announcement.address.isNull()) {
        AvahiAddress address = {};
        address.proto = AVAHI_PROTO_INET;
        address.data.ipv4.address = htonl(announcement.address.toIPv4Address());
        // Without reverse: several hosts of one network may know the address by other names.
        error = avahi_entry_group_add_address(group, m_interface, AVAHI_PROTO_INET, AVAHI_PUBLISH_NO_REVERSE,
                                              host.constData(), &address);
    }
    AvahiStringList* txt = listOf(announcement.txt);
    for (const Service& service : announcement.services) {
        if (error >= 0)
            error = avahi_entry_group_add_service_strlst(
                group, m_interface, AVAHI_PROTO_INET, AvahiPublishFlags(0), announcement.name.constData(),
                service.type.constData(), nullptr, host.constData(), uint16_t(service.port), txt);
    }
    avahi_string_list_free(txt);
    return error < 0 ? error : avahi_entry_group_commit(group);
}

void Announcer::groupIs(AvahiEntryGroup* handle, AvahiEntryGroupState state)
{
    const auto group = m_groups.find(handle);
    if (group == m_groups.end())
        return;
    group->second.isEstablished = state == AVAHI_ENTRY_GROUP_ESTABLISHED;
    if (state == AVAHI_ENTRY_GROUP_COLLISION)
        rename(handle, group->second);
    else if (state == AVAHI_ENTRY_GROUP_FAILURE)
        say(QStringLiteral("cannot announce %1")
                .arg(QString::fromUtf8(m_announcements.at(group->second.announcement).name)));
    count();
}

void Announcer::rename(AvahiEntryGroup* handle, Group& group)
{
    Announcement& announcement = m_announcements[group.announcement];
    if (++group.renamed >= MostNames) {
        say(QStringLiteral("the name %1 is taken").arg(QString::fromUtf8(announcement.name)));
        return;
    }
    char* other = avahi_alternative_service_name(announcement.name.constData());
    announcement.name = other;
    avahi_free(other);
    const Lock lock(m_poll);
    avahi_entry_group_reset(handle);
    const int error = fill(handle, announcement);
    if (error < 0)
        say(QStringLiteral("cannot announce %1: %2")
                .arg(QString::fromUtf8(announcement.name), QString::fromUtf8(avahi_strerror(error))));
}

void Announcer::count()
{
    int established = 0;
    for (const auto& group : m_groups)
        established += group.second.isEstablished ? 1 : 0;
    if (established == m_announced)
        return;
    m_announced = established;
    emit changed();
}

} // namespace kosim
