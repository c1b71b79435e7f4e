#ifndef KOSIM_ANNOUNCER_H
#define KOSIM_ANNOUNCER_H

#include "Announcement.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <avahi-client/client.h>
#include <avahi-client/publish.h>
#include <avahi-common/thread-watch.h>

#include <map>

namespace kosim {

/// Announces devices through one connection to the Avahi daemon. Waits for a daemon that is not there, and
/// announces again when it was restarted.
class Announcer : public QObject
{
    Q_OBJECT

public:
    enum {
        MostAnnouncements = 400 ///< the daemon allows about a thousand objects for a connection
    };

    /// On one interface by its index, IPv4 only.
    explicit Announcer(int interface);
    ~Announcer() override;

    /// In place of what was announced so far.
    void announce(const QVector<Announcement>& announcements);

    int announced() const { return m_announced; }
    int wanted() const { return int(m_announcements.size()); }

signals:
    void changed();

private:
    struct Group
    {
        int announcement = 0;
        int renamed = 0;
        bool isEstablished = false;
    };

    void open();
    void close();
    void clientIs(AvahiClientState state);
    void groupIs(AvahiEntryGroup* group, AvahiEntryGroupState state);
    void waitForDaemon(int error);
    void publish();
    void dropGroups();
    int fill(AvahiEntryGroup* group, const Announcement& announcement) const;
    void rename(AvahiEntryGroup* handle, Group& group);
    void count();

    static void clientChanged(AvahiClient* client, AvahiClientState state, void* self);
    static void groupChanged(AvahiEntryGroup* group, AvahiEntryGroupState state, void* self);

    const int m_interface;
    QVector<Announcement> m_announcements;
    int m_announced = 0;
    AvahiThreadedPoll* m_poll = nullptr;
    AvahiClient* m_client = nullptr;
    bool m_isRunning = false;
    bool m_saidMissing = false;
    int m_opened = 0; ///< what an earlier connection reports late is not for this one
    QTimer m_retry;
    std::map<AvahiEntryGroup*, Group> m_groups;
};

} // namespace kosim

#endif
