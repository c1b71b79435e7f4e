#ifndef KO_NODEDB_H
#define KO_NODEDB_H

#include "PlatformExport.h"
#include "ko/Types.h"
#include "kom/smart.h"

#include <QList>
#include <QObject>
#include <QPair>
#include <QStringList>

#include <string>

namespace ko {

class Environments;
class GlobalNetworkProxy;
class INodeDriverComponent;
class Node;
class NodeHint;

/// What a list of many nodes shows of each.
struct NodeBrief
{
    ENodeType type = AllNodeTypes;
    QString name;
    bool isDevice = false;
    QString address; ///< of a device
};

/// The node database of the process, implemented by the host.
///
/// All calls and signals belong to the GUI thread. Nothing here throws or reports errors to the caller:
/// what is missing comes back as a null handle, a null pointer or an empty list. Receivers of a signal
/// may call back into the database.
class KO_PLATFORM_EXPORT NodeDB : public QObject
{
    Q_OBJECT

public:
    typedef QList<QPair<ENodeType, QString>> TypeNames;

    /// The database alive: the one constructed last, null before the first. Fetch it at each use.
    static NodeDB* getDB();

    ~NodeDB() override;

    /// The node as it is now, or a null handle. What was handed out never changes.
    virtual kom::smart<const Node> node(const QString& id) const = 0;

    /// Says that all of these nodes will be asked for: a host that keeps nodes on a disk may read them
    /// together, which takes far less time than one after the other. Does nothing if not overridden.
    virtual void readAhead(const QStringList& ids) const;

    /// A node in brief, which a host may give without reading the node. False, with \a brief as it was,
    /// when there is no such node.
    virtual bool getBrief(const QString& id, NodeBrief* brief) const;

    /// Opens a writable copy of the node, null if there is none. \a limit is the host's; pass -1.
    /// Each copy is given back to endUpdateNode() exactly once.
    virtual Node* beginUpdateNode(const QString& id, int limit) = 0;

    /// Stores what differs in the copy, emits nodeUpdated() if anything did, and deletes the copy.
    /// A null pointer does nothing.
    virtual void endUpdateNode(Node* node) = 0;

    /// Creates a node from a filled hint and emits nodeInserted() before it returns.
    virtual void newNodeHint(const NodeHint& hint) = 0;

    /// The id of the node that the hint describes, or an empty string.
    virtual QString lookupHint(const NodeHint& hint) const = 0;

    /// Deletes the node and its relations; an unknown id does nothing.
    virtual void removeNode(const QString& id) = 0;

    /// Ids of all nodes of a type, oldest first; AllNodeTypes gives every node.
    virtual QStringList nodeIdList(ENodeType type) const = 0;

    virtual QString readableNodeTypeName(ENodeType type) const = 0;

    /// The types to offer with their names. A null \a types leaves the choice to the database. Order: as in
    /// \a types or, if \a sorted, by name.
    virtual TypeNames readableNodeTypeNames(const QList<ENodeType>* types, bool sorted) const = 0;

    /// The driver of a type, or a null handle.
    virtual kom::smart<INodeDriverComponent> nodeDriver(ENodeType type) const = 0;

    /// A relation that is there already is not added again; one that is not there is not removed.
    virtual void addNodeRelation(const QString& from, const QString& to, ENodeRelationType type) = 0;
    virtual void removeNodeRelation(const QString& from, const QString& to, ENodeRelationType type) = 0;

    /// Destinations of the relations that start at \a id, oldest first.
    virtual QStringList relatedNodes(const QString& id, ENodeRelationType type) const = 0;
    virtual bool isDestinationOfNodeRelation(const QString& id, ENodeRelationType type) const = 0;

    /// Switches a network scanner on or off; what it finds arrives as nodeInserted(). \a interfaces is a
    /// bit set of interface numbers and \a limit a number of addresses; all bits and -1 mean no
    /// restriction. Starting a running or stopping a stopped scanner does nothing.
    virtual void startScanners(const std::string& name, unsigned interfaces, int limit) = 0;
    virtual void stopScanners(const std::string& name) = 0;

    /// Folder on the default file server below which cameras record; empty when not set.
    virtual QString globalRecordingFolderPath() const = 0;
    virtual QString defaultRecordingTransponderIP() const = 0;

    /// Bandwidth of the connection as a whole, an ENodeBandwidth.
    virtual int bandwidth() const = 0;

    virtual GlobalNetworkProxy& globalProxy() = 0;
    virtual Environments& environments() = 0;
    virtual QString activeEnvironment() const = 0;
    virtual void setActiveEnvironment(const QString& id) = 0;

signals:
    void nodeInserted(ko::NodeID id);
    void nodeUpdated(ko::NodeID id);
    void nodeRemoved(ko::NodeID id);

protected:
    /// Registers the database as the one that getDB() returns; the destructor takes it back.
    explicit NodeDB(QObject* parent = nullptr);
};

} // namespace ko

#endif
