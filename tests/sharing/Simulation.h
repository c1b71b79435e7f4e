#ifndef TESTS_SHARING_SIMULATION_H
#define TESTS_SHARING_SIMULATION_H

#include "DeskTesting.h"
#include "SiteModel.h"
#include "sharing/ParcelCoding.h"
#include "sharing/SharingSession.h"

#include <map>

namespace testsupport {

/// Some desks with real files and sessions, and between them and a modelled site a network and a clock that
/// are not there: what happens, and in which order, follows from one number.
class Simulation
{
public:
    Simulation(const QString& folder, unsigned seed, int desks)
        : m_random(seed)
    {
        for (int i = 0; i < desks; ++i) {
            m_desks.emplace_back();
            m_desks.back().file = QStringLiteral("%1/desk%2.kodb").arg(folder).arg(i);
            m_desks.back().db = openDatabase(m_desks.back().file);
            begin(m_desks.back());
        }
        m_snapshot = m_site;
    }

    /// What went wrong first; empty as long as nothing has.
    const QString& failure() const { return m_failure; }
    const SiteModel& site() const { return m_site; }
    int count(const char* what) const
    {
        const auto found = m_counts.find(what);
        return found == m_counts.end() ? 0 : found->second;
    }

    /// Something happens, somewhere.
    void step()
    {
        Desk& desk = m_desks[below(int(m_desks.size()))];
        const int what = below(100);
        if (what < 15)
            edit(desk);
        else if (what < 18)
            cut(desk, "cut");
        else if (what < 20)
            crash(desk);
        else if (what < 23)
            deliverNotice(desk, below(int(m_site.parcels.size()) + 1)); // late, doubled or out of order
        else if (what == 23)
            m_snapshot = m_site;
        else if (what == 24)
            goBack();
        else if (what < 60)
            send(desk);
        else
            arrive(below(int(m_network.size()) + 1));
        check();
    }

    /// The network is sound again, and nobody does anything any more: in the end all are equal.
    void settle()
    {
        for (int turn = 0; turn < 2000 && !isSettled(); ++turn) {
            for (Desk& desk : m_desks)
                send(desk);
            while (!m_network.empty())
                arrive(0);
            for (Desk& desk : m_desks) {
                deliverNotice(desk, m_site.parcels.size());
                desk.session->storedHere();
            }
        }
        expect(isSettled(), "the desks do not come to rest");
        const QByteArray state = siteState(m_site.state());
        for (Desk& desk : m_desks) {
            expect(deskState(desk.file) == state, "a desk ends with something else than the site");
            PlainSql(desk.file).forEach(
                "SELECT t.id, coalesce(s.line, c.seq) FROM changes c JOIN change_sets t ON t.seq = "
                "c.change_set"
                " LEFT JOIN shared_lines s ON s.seq = c.seq WHERE s.seq IS NULL OR s.line IS NOT NULL",
                [this](const QSqlQuery& row) {
                    expect(m_site.has(row.value(0).toString(), row.value(1).toLongLong()),
                           "the site lacks what was confirmed at a desk");
                });
        }
    }

    /// After settle(): somebody who stores something before each step that the desk does. It gets what others
    /// did all the same.
    void keepBusy()
    {
        Desk& busy = m_desks.front();
        Desk& other = m_desks.back();
        edit(other);
        for (int turn = 0; turn < 20; ++turn) {
            send(other);
            while (!m_network.empty())
                arrive(0);
        }
        const qint64 last = m_site.parcels.size();
        for (int turn = 0; turn < 200 && busy.log->position() < last; ++turn) {
            edit(busy);
            send(busy);
            edit(busy);
            while (!m_network.empty())
                arrive(0);
        }
        expect(busy.log->position() >= last, "a busy desk does not get what others did");
    }

    /// After settle(): what was stored last stays when something earlier of the same desk comes back.
    void keepLast()
    {
        Desk& desk = m_desks.front();
        const QString id = addCamera(*desk.db, QStringLiteral("First"), QStringLiteral("10.7.7.7"));
        QCoreApplication::processEvents();
        desk.session->storedHere();
        while (desk.session->request().step != ko::SharingSession::Step::Fetch) {
            send(desk);
            while (!m_network.empty())
                arrive(0);
        }
        send(desk);
        arrive(0); // at the site; the answer is on its way
        setText(*desk.db, id, "Name", QStringLiteral("Last"));
        QCoreApplication::processEvents();
        arrive(0);
        desk.db->syncForeignChanges();
        expect(desk.db->summary(id).name == QLatin1String("Last"), "what was stored last goes back");
    }

    /// After settle(): the site tells of its past otherwise. Each desk finds it out, whatever it was doing,
    /// and keeps what waits.
    void rewritePast()
    {
        for (Desk& desk : m_desks) {
            if (below(2) == 0)
                edit(desk);
            if (below(2) == 0)
                crash(desk);
        }
        std::vector<QStringList> made;
        for (Desk& desk : m_desks)
            made.push_back(changeSetsOf(desk.file));
        m_site.rewrite(below(int(m_site.parcels.size())), below(2) == 0);
        for (int turn = 0; turn < 50; ++turn) {
            for (Desk& desk : m_desks) {
                if (desk.session->request().step != ko::SharingSession::Step::End)
                    send(desk);
            }
            while (!m_network.empty())
                arrive(0);
        }
        for (size_t i = 0; i < m_desks.size(); ++i) {
            expect(m_desks[i].session->state().reason == ko::SharingState::Rewritten,
                   "a desk does not see that the past is another one");
            const QStringList kept = changeSetsOf(m_desks[i].file);
            for (const QString& id : std::as_const(made[i]))
                expect(kept.contains(id), "a desk has lost something");
        }
    }

private:
    struct Desk
    {
        QString file;
        std::unique_ptr<ko::HostNodeDB> db;
        std::unique_ptr<ko::SharedLog> log;
        std::unique_ptr<ko::SharingSession> session;
        quint64 sent = ~quint64(0); ///< the request that was sent last
        quint64 connection = 0;     ///< of which answers are heard
    };

    /// On its way: to the site, or back. What a cut connection has sent may still be done.
    struct Message
    {
        Desk* desk;
        quint64 connection;
        ko::SharingSession::Request request;
        std::function<void(ko::SharingSession&)> answer; ///< none yet: it goes to the site
    };

    int below(int limit) { return int(m_random() % unsigned(limit)); }

    void expect(bool isSo, const char* otherwise)
    {
        if (!isSo && m_failure.isEmpty())
            m_failure = QLatin1String(otherwise);
    }

    void begin(Desk& desk)
    {
        ko::StoreError error;
        desk.session.reset();
        desk.log = ko::SharedLog::open(desk.file, describe, &error);
        desk.session = std::make_unique<ko::SharingSession>(*desk.log, 1);
        desk.sent = ~quint64(0);
        ++desk.connection;
    }

    void edit(Desk& desk)
    {
        for (int count = 1 + below(4); count > 0; --count) {
            ++m_counts["edit"];
            randomEdit(*desk.db, m_random);
            QCoreApplication::processEvents(); // the turn ends
        }
        desk.session->storedHere();
    }

    void cut(Desk& desk, const char* why)
    {
        ++m_counts[why];
        ++desk.connection;
        desk.session->failed(desk.session->request().serial, {ko::SharingFailure::Away, QLatin1String(why)});
    }

    void crash(Desk& desk)
    {
        ++m_counts["crash"];
        begin(desk);
    }

    /// Yesterday's backup: what came after is gone, with all that was under way. Sometimes a desk is gone
    /// with it, and what it did is only where others have it.
    void goBack()
    {
        m_site = m_snapshot;
        m_network.clear();
        if (m_desks.size() > 2 && below(2) == 0)
            m_desks.pop_back();
        for (Desk& desk : m_desks)
            cut(desk, "gone back");
    }

    static void deliverNotice(Desk& desk, qint64 number) { desk.session->notified(number); }

    /// What the session of a desk wants goes on its way.
    void send(Desk& desk)
    {
        const ko::SharingSession::Request request = desk.session->request();
        if (request.step == ko::SharingSession::Step::Listen ||
            request.step == ko::SharingSession::Step::Pause) {
            desk.session->timeIsUp(request.serial);
            return;
        }
        expect(request.step != ko::SharingSession::Step::End, "a desk has given up");
        if (desk.sent == request.serial)
            return;
        desk.sent = request.serial;
        m_network.push_back({&desk, desk.connection, request, nullptr});
    }

    /// The message at \a index gets where it goes. Over one connection none overtakes another.
    void arrive(int index)
    {
        if (index >= int(m_network.size()))
            return;
        Message message = m_network.at(size_t(index));
        m_network.erase(m_network.begin() + index);
        if (!message.answer) {
            message.answer = answerTo(message.request);
            m_network.push_back(message);
        } else if (message.connection == message.desk->connection) {
            message.answer(*message.desk->session);
        }
    }

    std::function<void(ko::SharingSession&)> answerTo(const ko::SharingSession::Request& request)
    {
        const quint64 serial = request.serial;
        switch (request.step) {
        case ko::SharingSession::Step::Connect: {
            const ko::SiteGreeting greeting{m_site.id, ko::SharingSession::Version, m_site.parcels.size(),
                                            true};
            return [=](ko::SharingSession& session) { session.greeted(serial, greeting); };
        }
        case ko::SharingSession::Step::Agree: {
            const ko::KnownParcel newest = m_site.agreed(request.known);
            return [=](ko::SharingSession& session) { session.agreed(serial, newest); };
        }
        case ko::SharingSession::Step::Submit: {
            QVector<ko::SharedParcel> parcels;
            for (const ko::SharedParcel& parcel : request.parcels)
                parcels.append(overTheWire(parcel));
            const qint64 number = m_site.submit(parcels);
            return [=](ko::SharingSession& session) { session.submitted(serial, number); };
        }
        case ko::SharingSession::Step::Review: {
            const auto parcels = m_site.after(request.position, ko::SharingSession::MostParcels);
            return [=](ko::SharingSession& session) { session.reviewed(serial, parcels); };
        }
        default: {
            const auto parcels = m_site.after(request.position, 1 + below(ko::SharingSession::MostParcels));
            return [=](ko::SharingSession& session) { session.fetched(serial, parcels); };
        }
        }
    }

    ko::SharedParcel overTheWire(const ko::SharedParcel& parcel)
    {
        const QByteArray list = ko::ParcelCoding::encode({parcel});
        QString error;
        const auto read = ko::ParcelCoding::decode(list.mid(1, list.size() - 2), &error);
        expect(read.has_value(), "a parcel cannot be read");
        return read.value_or(ko::SharedParcel());
    }

    bool isQuiet(Desk& desk)
    {
        ko::SharedLog::Cursor start;
        const auto newest = desk.log->known(1);
        return desk.log->position() == m_site.parcels.size() &&
               (newest.isEmpty() || newest.constFirst().id == m_site.parcels.constLast().id) &&
               desk.log->waiting(&start, 1).isEmpty();
    }

    bool isSettled()
    {
        return std::all_of(m_desks.begin(), m_desks.end(), [this](Desk& desk) { return isQuiet(desk); });
    }

    /// A desk that has all, and of which the site has all, has what the site has.
    void check()
    {
        Desk& desk = m_desks[below(int(m_desks.size()))];
        if (!isQuiet(desk))
            return;
        ++m_counts["compared"];
        expect(deskState(desk.file) == siteState(m_site.state()), "a desk has something else than the site");
    }

    std::mt19937 m_random;
    std::vector<Desk> m_desks;
    std::vector<Message> m_network;
    SiteModel m_site;
    SiteModel m_snapshot;
    QString m_failure;
    std::map<std::string, int> m_counts;
};

} // namespace testsupport

#endif
