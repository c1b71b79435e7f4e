#ifndef KO_NODEVIEW_H
#define KO_NODEVIEW_H

#include "PlatformExport.h"
#include "ko/NodeViewEntry.h"

#include <QHash>
#include <QObject>
#include <QStringList>

#include <deque>

namespace ko {

/// A named list of nodes, which may hold further named lists.
///
/// The view keeps identifiers, not nodes, and follows the database only where its slots are connected.
/// A node stands at most once in each list. Adding, finding and removing an entry take the same time in
/// a short and in a long list.
class KO_PLATFORM_EXPORT NodeView : public QObject
{
    Q_OBJECT

public:
    explicit NodeView(const QString& name);
    ~NodeView() override;

    QString name() const;

    /// The list that all entries stand in; its internal id is 0.
    const SubViewEntry& root() const { return *m_root; }

    /// The list that an entry stands in; null for the root and for an entry that was taken off.
    const SubViewEntry* parentOf(const NodeViewEntry& entry) const { return entry.m_parent; }

    /// The entry with this number, or a null handle.
    kom::smart<NodeViewEntry> entryFromInternalId(unsigned internalId) const;

    /// The same without a handle; valid until the view changes.
    const NodeViewEntry* findEntry(unsigned internalId) const;

    /// Every entry of the view that stands for the node.
    QList<kom::smart<NodeEntry>> entriesOf(const NodeID& id) const;

    /// Appends an empty list to the view and returns it.
    kom::smart<SubViewEntry> addSubView(const QString& name);

    void renameSubView(SubViewEntry& list, const QString& name) { list.m_name = name; }

    /// Appends a node to a list of this view; nothing happens if it stands there or the list is gone.
    void addNodeTo(SubViewEntry& list, const NodeID& id);

    /// Puts these nodes into a view that is empty, all at once: models and the views on them take rows that
    /// come one by one in a time that grows with the square. Each node must be named once.
    void fill(const QStringList& ids);

    /// Takes the node off the view's own list, with \a everywhere off all its lists. The node itself
    /// stays in the database.
    void removeNode(const QString& id, bool everywhere);
    void removeAll();

public slots:
    void addNode(ko::NodeID id);

signals:
    // Each change is bracketed by a signal and its partner, for item models.
    void entriesAboutToBeInserted(unsigned listId, int first, int last);
    void entriesInserted();
    void entryAboutToBeRemoved(unsigned listId, int row);
    void entryRemoved();
    void aboutToBeCleared();
    void cleared();

private:
    const kom::smart<NodeViewEntry>* place(unsigned internalId) const;
    void indexFilled() const;
    bool holds(const SubViewEntry& list, const NodeID& id) const;

    std::unique_ptr<SubViewEntry> m_root;
    // Without those that the root was filled with, until one is looked for by its node.
    mutable std::deque<kom::smart<NodeViewEntry>> m_entries; ///< by number; null where one was removed
    mutable QMultiHash<NodeID, kom::smart<NodeEntry>> m_entriesByNode;
    unsigned m_firstInternalId = 1; ///< of those in m_entries
    unsigned m_lastInternalId = 0;
};

} // namespace ko

#endif
