#include "database/NodeEditing.h"

#include "database/WrittenDevices.h"
#include "drivers/NodeTypes.h"
#include "ko/LogQt.h"
#include "ko/PropertyKeys.h"
#include "secrets/Vault.h"

#include <QRandomGenerator>

#include <algorithm>

namespace ko {

namespace {

/// 16 characters, of which 75 bits are random: unique among processes that do not know of each other.
/// Begins with a letter and holds no character that a spreadsheet, a URL or a file name would mind.
NodeID newNodeId()
{
    static constexpr char alphabet[] = "abcdefghijkmnpqrstuvwxyz23456789";
    quint64 random[2];
    QRandomGenerator::system()->fillRange(random);
    NodeID id(16, QLatin1Char('n'));
    for (int i = 1; i < id.size(); ++i)
        id[i] = QLatin1Char(alphabet[random[i / 8] >> 5 * (i % 8) & 31]);
    return id;
}

Notices updated(std::initializer_list<NodeID> ids)
{
    Notices notices;
    for (const NodeID& id : ids)
        notices.updated(id);
    return notices;
}

} // namespace

NodeEditing::NodeEditing(NodeMemory& memory, ChangeQueue& queue, HostSettings& settings, Announce announce)
    : m_memory(memory)
    , m_queue(queue)
    , m_settings(settings)
    , m_announce(std::move(announce))
    , m_copies(memory.vault())
{
}

kom::smart<const Node> NodeEditing::node(const NodeID& id)
{
    const NodeRecord* record = read(id);
    if (!record)
        return kom::smart<const Node>();
    std::shared_ptr<const Node>& node = record->contents->node;
    if (!node)
        node = NodeTypes::createNode(record->data(), m_memory.vault());
    return node;
}

/// The record of the node with its properties; null if there is none or it cannot be read.
NodeRecord* NodeEditing::read(const NodeID& id)
{
    NodeRecord* record = m_memory.cache().find(id);
    return record && m_queue.reading([&] { return m_memory.read(*record); }) ? record : nullptr;
}

Node* NodeEditing::begin(const NodeID& id)
{
    m_queue.sync();
    const NodeRecord* record = m_memory.isReadOnly ? nullptr : read(id);
    return record ? m_copies.begin(record->data()) : nullptr;
}

void NodeEditing::end(Node* copy)
{
    const std::optional<NodeCopies::Edit> edit = m_copies.end(copy);
    if (!edit) {
        if (copy)
            LogQt::line(LogQt::Error, QLatin1String("endUpdateNode() without its beginUpdateNode()"));
        return;
    }
    NodeRecord* record = read(edit->id());
    if (!record) {
        LogQt::line(LogQt::Debug, QLatin1String("A node was removed while it was edited"));
        return;
    }
    if (!m_memory.update(*record, edit->mergedInto(record->data())))
        return;
    written(edit->id(), record->summary.type());
    m_announce(updated({edit->id()}));
    makeRemotePreview(edit->id());
}

void NodeEditing::written(const NodeID& id, ENodeType type)
{
    if (NodeTypes::isDevice(type))
        m_memory.pending.writtenDevices.append(id);
    m_queue.schedule();
}

/// A camera that is reached through the remote preview server has a node with its settings for that.
void NodeEditing::makeRemotePreview(const NodeID& camera)
{
    const NodeRecord* record = m_memory.cache().find(camera);
    if (!record || record->summary.type() != IPDeviceType ||
        !record->data().properties.value(PropertyKeys::UseRecordingTransponder).toBool() ||
        !m_memory.relations().destinations(camera, RecordingTransponderRelation).isEmpty())
        return;
    const NodeID preview =
        add(NodeTypes::remotePreviewOf(record->data(), m_settings.text(HostSettings::TransponderAddress)));
    change({{camera, preview, RecordingTransponderRelation}, true});
}

NodeID NodeEditing::add(NodeData data)
{
    if (m_memory.isReadOnly)
        return NodeID();
    data.id = newNodeId();
    m_memory.vault()->seal(data);
    if (NodeTypes::isDevice(data.type))
        WrittenDevices::prepare(data);
    m_memory.add(data);
    written(data.id, data.type);
    Notices notices;
    notices.inserted(data.id);
    m_announce(notices);
    return data.id;
}

void NodeEditing::remove(const NodeID& id)
{
    NodeRecord* record = m_memory.isReadOnly ? nullptr : m_memory.cache().find(id);
    if (!record)
        return;
    const NodeID removed = record->summary.id(); // the caller's may be a part of what goes
    const QStringList previews = m_memory.relations().destinations(removed, RecordingTransponderRelation);
    m_memory.remove(*record);
    m_queue.schedule();
    Notices notices;
    notices.removed(removed);
    m_announce(notices);
    for (const QString& preview : previews) {
        if (!m_memory.relations().isDestination(preview, RecordingTransponderRelation))
            remove(preview);
    }
}

void NodeEditing::change(const RelationChange& change)
{
    const Relation& relation = change.relation;
    const bool exist = m_memory.cache().find(relation.source) && m_memory.cache().find(relation.destination);
    if (m_memory.isReadOnly || (change.isAdded && !exist) || !m_memory.change(change))
        return;
    m_queue.schedule();
    m_announce(updated({relation.source, relation.destination}));
}

bool NodeEditing::apply(const ChangeSet& set)
{
    if (m_memory.isReadOnly)
        return false;
    return m_queue.reading([&] {
        QStringList ids;
        for (const NodeChange& change : set.nodes)
            ids.append(change.id);
        m_memory.readAhead(ids); // what fails fails before anything is done
        const Notices notices = applyAll(set);
        for (const NodeChange& change : set.nodes) {
            const NodeRecord* record = m_memory.cache().find(change.id);
            if (record && record->contents)
                written(change.id, record->summary.type()); // others may have its extension meanwhile
        }
        m_queue.schedule();
        m_announce(notices);
        return true;
    });
}

ChangeSet NodeEditing::withdraw(const Cause& cause)
{
    ChangeSet whole;
    const QVector<ChangeSet> sets = m_memory.pending.setsOf(cause);
    for (const ChangeSet& set : sets) {
        whole.nodes += set.nodes;
        whole.relations += set.relations;
        whole.settings += set.settings;
        if (set.environments)
            whole.environments = set.environments;
    }
    const bool hasRemoved = std::any_of(whole.nodes.cbegin(), whole.nodes.cend(),
                                        [](const NodeChange& change) { return change.isRemoved(); });
    if (hasRemoved)
        return ChangeSet(); // the store alone knows what they were
    m_memory.pending.drop(cause);
    const Notices notices = applyAll(whole.inverse());
    m_memory.pending.drop(cause); // what takes it back is not a change either
    m_announce(notices);
    return whole;
}

Notices NodeEditing::applyAll(const ChangeSet& set)
{
    Notices notices;
    for (const NodeChange& change : set.nodes)
        apply(change, &notices);
    for (const RelationChange& change : set.relations) {
        const Relation& relation = change.relation;
        if (!m_memory.cache().find(relation.source) || !m_memory.cache().find(relation.destination) ||
            !m_memory.change(change))
            continue;
        notices.updated(relation.source);
        notices.updated(relation.destination);
    }
    for (const SettingChange& change : set.settings)
        notices.settings = m_memory.setSetting(change.key, change.after) || notices.settings;
    if (set.environments) {
        m_memory.setEnvironments(set.environments->after);
        notices.settings = true;
    }
    return notices;
}

void NodeEditing::apply(const NodeChange& change, Notices* notices)
{
    NodeRecord* record = m_memory.cache().find(change.id);
    if (change.isAdded() == (record != nullptr) || (record && !m_memory.read(*record)))
        return;
    NodeData data;
    if (record) {
        data = record->data();
    } else {
        data.id = change.id;
        data.type = change.type;
    }
    if (change.isRemoved()) {
        m_memory.remove(*record);
        notices->removed(change.id);
        return;
    }
    if (!change.before || change.before->name != change.after->name)
        data.name = change.after->name;
    for (const std::optional<NodeValues>* side : {&change.before, &change.after}) {
        const PropertyList properties = *side ? (*side)->properties : PropertyList();
        for (const PropertyList::Entry& entry : properties)
            data.properties.set(entry.name, change.after->properties.value(entry.name));
    }
    if (!record) {
        m_memory.add(data, change.place);
        notices->inserted(change.id);
    } else if (m_memory.update(*record, data)) {
        notices->updated(change.id);
    }
}

} // namespace ko
