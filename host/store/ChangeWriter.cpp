#include "store/ChangeWriter.h"

#include "secrets/Secrets.h"
#include "secrets/Vault.h"
#include "store/ChangeCoding.h"
#include "store/HistorySwitch.h"

namespace ko {

#ifdef KO_BENCH
bool hasHistory = true;
#endif

ChangeWriter::ChangeWriter(NodeTables& tables, ChangeLog& log, Vault& vault, std::atomic<int>& done)
    : m_tables(tables)
    , m_log(log)
    , m_vault(vault)
    , m_done(done)
{
}

void ChangeWriter::write(const ChangeSet& set)
{
    m_set = &set;
    m_number = 0;
    for (const NodeChange& change : set.nodes) {
        if (change.isAdded())
            addNode(change);
        else if (change.isRemoved())
            removeNode(change);
        else
            updateNode(change);
        ++m_done;
    }
    for (const RelationChange& relation : set.relations) {
        change(relation);
        ++m_done;
    }
    for (const SettingChange& setting : set.settings)
        change(setting);
    if (set.environments)
        change(*set.environments);
    if (m_number != 0)
        m_sets.append({m_number, set.cause});
    else if (!set.audit.isEmpty())
        m_number = m_log.find(set.cause); // it may have changed something before
    for (const AuditRow& row : set.audit)
        m_log.addAudit(m_number, row);
}

void ChangeWriter::addNode(NodeChange change)
{
    change.place = m_tables.insertNode(change.place, change.summary, change.lookupKey);
    seal(change.id, &change.after->properties);
    const QString stored = m_tables.setProperties(change.place, change.after->properties);
    m_places.insert(change.id, change.place);
    note(change, stored);
}

void ChangeWriter::updateNode(NodeChange change)
{
    std::optional<StoredProperties> stored = m_tables.properties(change.id);
    if (!stored) {
        m_missing.append(change.id);
        return;
    }
    m_tables.updateNode(stored->n, change.summary, change.lookupKey);
    seal(change.id, &change.before->properties);
    seal(change.id, &change.after->properties);
    const auto changes = PropertyList::difference(change.before->properties, change.after->properties);
    for (const PropertyList::Entry& entry : changes)
        stored->list.set(entry.name, entry.value);
    if (!changes.isEmpty())
        m_tables.setProperties(stored->n, stored->list);
    note(change);
}

/// What the store has of the node is what the log keeps of it: memory may never have read it.
void ChangeWriter::removeNode(const NodeChange& change)
{
    const NodeRow row = m_tables.node(change.id);
    if (row.place == 0)
        return;
    NodeChange whole;
    whole.id = change.id;
    whole.type = row.summary.type();
    whole.place = row.place;
    whole.before = NodeValues{row.summary.name(), m_tables.properties(change.id)->list};
    const QVector<RelationChange> relations = m_tables.relationsOf(row.place);
    for (const RelationChange& relation : relations)
        note(relation);
    m_tables.removeNode(row.place);
    note(whole);
}

void ChangeWriter::change(const RelationChange& change)
{
    RelationChange made = change;
    made.place = change.isAdded ? m_tables.addRelation(change.relation, change.place)
                                : m_tables.removeRelation(change.relation);
    if (made.place == 0)
        return;
    note(made);
    if (change.isAdded && change.place != 0)
        m_reordered.insert(change.relation.source);
}

void ChangeWriter::change(const SettingChange& change)
{
    const std::optional<QString> before = m_tables.setting(change.key);
    const std::optional<QString> after =
        change.after ? std::make_optional(sealed(QLatin1String(Secrets::Settings), change.key, *change.after))
                     : std::nullopt;
    if (before == after)
        return;
    m_tables.setSetting(change.key, after);
    const auto text = [](const std::optional<QString>& value) {
        return value && value->isNull() ? QString::fromLatin1("") : value.value_or(QString());
    };
    m_log.add(number(), {ChangeLog::SettingKind, change.key}, text(before), text(after));
}

void ChangeWriter::change(const EnvironmentsChange& change)
{
    const Environments::List before = m_tables.environments();
    if (before == change.after)
        return;
    m_tables.setEnvironments(change.after);
    m_log.add(number(), {ChangeLog::EnvironmentsKind, QString()}, ChangeCoding::text(before),
              ChangeCoding::text(change.after));
}

/// \a after: the properties as JSON, where it is made already.
void ChangeWriter::note(const NodeChange& change, const QString& after)
{
    if (!hasHistory) {
        m_log.add(0, {ChangeLog::NodeKind, change.id}, QString(), QString());
        return;
    }
    m_log.add(number(), {ChangeLog::NodeKind, change.id}, ChangeCoding::text(change.before, change),
              ChangeCoding::text(change.after, change, after));
}

void ChangeWriter::note(const RelationChange& change)
{
    const QString text = ChangeCoding::text(change);
    m_log.add(number(), {ChangeLog::RelationKind, change.relation.source}, change.isAdded ? QString() : text,
              change.isAdded ? text : QString());
}

qint64 ChangeWriter::number()
{
    if (m_number == 0)
        m_number = m_log.numberOf(m_set->cause);
    return m_number;
}

/// Held in memory, a password that waited for the key is sealed once: before one change it is what it was
/// after the one before.
QString ChangeWriter::sealed(const QString& owner, const QString& key, const QString& text)
{
    const auto found = m_sealed.constFind(text);
    if (found != m_sealed.constEnd())
        return *found;
    const std::optional<QString> result = m_vault.toStore(owner, key, text);
    if (!result)
        throw StoreFailure{
            StoreError::make(m_vault.missingKey(), m_tables.fileName(), QLatin1String("no key"))};
    if (*result != text)
        m_sealed.insert(text, *result);
    return *result;
}

/// Almost always nothing is held, and the list stays shared.
void ChangeWriter::seal(const NodeID& node, PropertyList* properties)
{
    const PropertyList list = *properties;
    for (const PropertyList::Entry& entry : list) {
        if (entry.value.userType() == QMetaType::QString && Vault::isHeld(entry.value.toString()))
            properties->set(entry.name, sealed(node, entry.name, entry.value.toString()));
    }
}

} // namespace ko
