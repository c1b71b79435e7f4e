#ifndef KO_PLACEINDEX_H
#define KO_PLACEINDEX_H

#include "model/NodeData.h"

#include <QHash>
#include <QStringList>

namespace ko {

class HostNodeDB;

/// Where each device is, and how many are at each place.
class PlaceIndex
{
public:
    /// The database outlives it. Empty until read() is called.
    explicit PlaceIndex(const HostNodeDB& db);

    void read();

    /// Of nodes that are new, changed or gone. False when no device has come, gone or moved.
    bool take(const QVector<NodeSummary>& changed, const QStringList& removed);

    /// Normalized; empty for a device without one, and for other nodes.
    QString placeOf(const NodeID& id) const { return m_places.value(id); }

    /// All places with devices and those around them, in their natural order.
    QStringList places() const;

    /// How many devices are at a place or in it.
    int count(const QString& place) const { return m_counts.value(place); }

private:
    bool put(const NodeID& id, const QString& place);
    void add(const QString& place, int devices);

    const HostNodeDB& m_db;
    QHash<NodeID, QString> m_places; ///< of those that have one
    QHash<QString, int> m_counts;
};

} // namespace ko

#endif
