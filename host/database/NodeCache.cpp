#include "database/NodeCache.h"

namespace ko {

bool NodeRecord::isStored() const
{
    return order < NodeCache::FirstUnstored;
}

NodeData NodeRecord::data() const
{
    NodeData data;
    data.id = summary.id();
    data.type = summary.type();
    data.name = summary.name();
    if (contents) {
        data.properties = contents->properties;
        data.context = contents->context;
        data.hasContext = contents->context != nullptr;
    }
    return data;
}

NodeRecord* NodeCache::find(const NodeID& id) const
{
    prepare();
    return m_byId.find(id);
}

void NodeCache::prepare() const
{
    if (m_isReady)
        return;
    m_isReady = true;
    m_byId.reserve(m_nodes.size());
    for (const auto& node : m_nodes) {
        const PackedSummary& summary = node.second.summary;
        m_ids[summary.type()].append(summary.id());
        m_byId.insert(const_cast<NodeRecord*>(&node.second));
    }
}

/// Before a node comes, goes or changes its place.
void NodeCache::changed()
{
    m_ids.clear();
    m_allIds.clear();
}

const QStringList& NodeCache::ids(ENodeType type) const
{
    prepare();
    const bool isMissing = type == AllNodeTypes ? m_allIds.isEmpty() : m_ids.isEmpty();
    for (auto node = m_nodes.cbegin(); isMissing && node != m_nodes.cend(); ++node) {
        const PackedSummary& summary = node->second.summary;
        (type == AllNodeTypes ? m_allIds : m_ids[summary.type()]).append(summary.id());
    }
    return type == AllNodeTypes ? m_allIds : m_ids[type];
}

QVector<NodeSummary> NodeCache::summaries() const
{
    QVector<NodeSummary> result;
    result.reserve(count());
    for (const auto& node : m_nodes)
        result.append(node.second.summary.unpacked());
    return result;
}

NodeRecord& NodeCache::insert(qint64 order, const PackedSummary& summary)
{
    changed();
    // Nearly always after all others.
    NodeRecord& record = m_nodes.emplace_hint(m_nodes.end(), order, NodeRecord())->second;
    record.order = order;
    record.summary = summary;
    if (m_isReady)
        m_byId.insert(&record);
    return record;
}

NodeRecord& NodeCache::insertStored(qint64 order, const PackedSummary& summary)
{
    return insert(qMin(order, FirstUnstored - 1), summary);
}

NodeRecord& NodeCache::append(const PackedSummary& summary)
{
    return insert(m_nextUnstored++, summary);
}

NodeCache::Map::iterator NodeCache::placeOf(const NodeRecord& record)
{
    auto place = m_nodes.lower_bound(record.order);
    while (&place->second != &record)
        ++place;
    return place;
}

void NodeCache::remove(NodeRecord& record)
{
    prepare();
    changed();
    setLookupKey(record, QString());
    m_byId.remove(&record);
    m_nodes.erase(placeOf(record));
}

void NodeCache::setStored(NodeRecord& record, qint64 order)
{
    changed();
    Map::node_type node = m_nodes.extract(placeOf(record));
    record.order = qMin(order, FirstUnstored - 1);
    node.key() = record.order;
    m_nodes.insert(std::move(node));
}

void NodeCache::clearLookup()
{
    m_byLookupKey.clear();
    for (auto& node : m_nodes)
        node.second.lookupKey.clear();
    m_lookupReady = false;
}

void NodeCache::setLookupKey(NodeRecord& record, const QString& key)
{
    if (!record.lookupKey.isEmpty())
        m_byLookupKey.remove(record.lookupKey, &record);
    record.lookupKey = key;
    if (!key.isEmpty())
        m_byLookupKey.insert(key, &record);
}

const NodeRecord* NodeCache::findLookupKey(const QString& key) const
{
    const NodeRecord* oldest = nullptr;
    const auto range = m_byLookupKey.equal_range(key);
    for (auto it = range.first; it != range.second; ++it) {
        if (!oldest || it.value()->order < oldest->order)
            oldest = it.value();
    }
    return oldest;
}

} // namespace ko
