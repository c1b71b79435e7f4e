#include "sharing/SiteKeyTask.h"

#include "secrets/SiteKeyring.h"
#include "sharing/SiteConnection.h"
#include "sharing/SiteKeyTable.h"

namespace ko {

namespace {

/// One task under way.
class Performing
{
public:
    Performing(const SiteKeyTask& task, SiteConnection& connection)
        : m_task(task)
        , m_connection(connection)
    {
    }

    SiteKeyOutcome run()
    {
        m_outcome.site = m_task.site;
        m_outcome.failure = SiteKeyTable::fetch(m_connection, &m_outcome.record);
        if (m_outcome.failure) {
            m_outcome.kind = SiteKeyOutcome::Failed;
            return m_outcome;
        }
        SiteKeyring& ring = SiteKeyring::ofProcess();
        ring.setCurrent(m_task.site, m_outcome.record.name);
        if (m_task.kind != SiteKeyTask::Look)
            m_outcome.kind = change();
        m_outcome.isHere = m_outcome.record.hasKey() && ring.has(m_task.site, m_outcome.record.name);
        return m_outcome;
    }

private:
    SiteKeyOutcome::Kind change()
    {
        const bool makes = m_task.kind == SiteKeyTask::Make;
        const QString& fresh = makes ? m_task.passphrase : m_task.newPassphrase;
        if (m_task.kind != SiteKeyTask::Open && fresh.size() < KeyEnvelope::ShortestPassphrase)
            return SiteKeyOutcome::TooShort;
        if (makes)
            return m_outcome.record.hasKey() ? SiteKeyOutcome::SomebodyElse : set(Sealer::newKey(), fresh);
        const SiteKeyOutcome::Kind opened = open();
        if (opened != SiteKeyOutcome::Done || m_task.kind == SiteKeyTask::Open)
            return opened;
        return set(m_task.kind == SiteKeyTask::ChangeKey ? Sealer::newKey() : m_keys.front(), fresh);
    }

    /// And all former ones that the site has.
    SiteKeyOutcome::Kind open()
    {
        if (!m_outcome.record.hasKey())
            return SiteKeyOutcome::NoKey;
        QByteArray key;
        switch (m_outcome.record.envelope.open(m_task.passphrase, m_task.site, &key)) {
        case KeyEnvelope::Opened::Good:
            break;
        case KeyEnvelope::Opened::WrongPassphrase:
            return SiteKeyOutcome::WrongPassphrase;
        case KeyEnvelope::Opened::Unusable:
            return SiteKeyOutcome::Unusable;
        }
        if (KeyEnvelope::nameOf(key) != m_outcome.record.name)
            return SiteKeyOutcome::WrongPassphrase;
        m_keys = {key};
        for (const QString& sealed : std::as_const(m_outcome.record.former)) {
            const QByteArray former = KeyEnvelope::fromUnderKey(sealed, m_keys.back(), m_task.site);
            if (former.isEmpty())
                break;
            m_keys.push_back(former);
        }
        keep();
        return SiteKeyOutcome::Done;
    }

    SiteKeyOutcome::Kind set(const QByteArray& key, const QString& passphrase)
    {
        const bool isNew = m_keys.empty() || m_keys.front() != key;
        const QString former =
            m_keys.empty() || !isNew ? QString() : KeyEnvelope::underKey(m_keys.front(), key, m_task.site);
        const KeyEnvelope envelope = KeyEnvelope::seal(key, passphrase, m_task.site, m_task.cost);
        if (envelope.isEmpty())
            return SiteKeyOutcome::Unusable;
        const QByteArray text = SiteKeyTable::encode(KeyEnvelope::nameOf(key), envelope, former);
        bool isTaken = false;
        m_outcome.failure = SiteKeyTable::put(m_connection, m_outcome.record.revision, text, &isTaken);
        if (m_outcome.failure)
            return SiteKeyOutcome::Failed;
        if (!isTaken)
            return SiteKeyOutcome::SomebodyElse;
        if (isNew)
            m_keys.insert(m_keys.begin(), key);
        keep();
        ++m_outcome.record.revision;
        m_outcome.record.name = KeyEnvelope::nameOf(key);
        return SiteKeyOutcome::Done;
    }

    void keep() { m_outcome.isNotKept = !SiteKeyring::ofProcess().add(m_task.site, m_keys); }

    const SiteKeyTask& m_task;
    SiteConnection& m_connection;
    SiteKeyOutcome m_outcome;
    std::vector<QByteArray> m_keys; ///< the present one first
};

} // namespace

SiteKeyOutcome perform(const SiteKeyTask& task, SiteConnection& connection)
{
    return Performing(task, connection).run();
}

} // namespace ko
