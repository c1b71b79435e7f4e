#ifndef KO_HOSTNODEDB_H
#define KO_HOSTNODEDB_H

#include "HostExport.h"
#include "ko/NodeDB.h"
#include "ko/TrContext.h"
#include "model/ChangeScope.h"
#include "model/ChangeSet.h"
#include "model/StoreError.h"

#include <functional>
#include <memory>

namespace ko {

class AuditLog;
class LogStore;
class NodeEditors;
class NodeStore;
class Scanning;
class StoredHistory;

/// The node database of this host, on a SQLite file.
///
/// Reading: nodes handed out are unchanging snapshots. Id, type, name, location and recording usage of
/// all nodes are in memory; other properties are read when they are first needed and kept.
///
/// Writing: a change is visible at once and announced before the call returns. All changes of one turn
/// of the event loop share one transaction, which is on disk before the event loop waits again; with
/// the audit entries that belong to it. Where that would take longer than a frame, the event loop goes on
/// meanwhile, see isStoring(). When that fails, storeFailed() is emitted, nothing is lost from
/// memory, and the same changes are tried again with the next ones, by flush() or, given up, thrown away
/// by discardUnstoredChanges().
///
/// Other processes may use the same file. What they change arrives as the same three signals, within
/// half a second, very much of it in several turns of the event loop; beginUpdateNode() looks for it first.
/// Only properties that really differ are stored, so two processes that change different properties of one
/// node both keep their work.
class KO_HOST_EXPORT HostNodeDB : public NodeDB, public ChangeGrouping
{
    Q_OBJECT
    KO_TR_CONTEXT(HostNodeDB)

public:
    /// When the file is looked through for damage.
    enum class Check {
        First, ///< before it is opened: a damaged file is left as it is
        Behind ///< while it is in use already, for a window that must not wait; see checked(). The nodes are
               ///< read meanwhile, too; see isLoaded()
    };

    /// Opens \a file, creating or migrating it as needed; null and \a error when that cannot be done,
    /// with the file unchanged. The folder must exist.
    static std::unique_ptr<HostNodeDB> open(const QString& file, StoreError* error,
                                            Check check = Check::First);

    /// Stores what is not stored yet.
    ~HostNodeDB() override;

    QString fileName() const;

    // NodeDB
    kom::smart<const Node> node(const QString& id) const override;
    void readAhead(const QStringList& ids) const override;
    bool getBrief(const QString& id, NodeBrief* brief) const override;
    Node* beginUpdateNode(const QString& id, int limit) override;
    void endUpdateNode(Node* node) override;
    void newNodeHint(const NodeHint& hint) override;
    QString lookupHint(const NodeHint& hint) const override;
    void removeNode(const QString& id) override;
    QStringList nodeIdList(ENodeType type) const override;
    QString readableNodeTypeName(ENodeType type) const override;
    /// Without \a types: those of which a user may add nodes.
    TypeNames readableNodeTypeNames(const QList<ENodeType>* types, bool sorted) const override;
    kom::smart<INodeDriverComponent> nodeDriver(ENodeType type) const override;
    /// Relations between nodes that are not there are not added. Both nodes are announced as updated
    /// when a relation comes or goes, here and in other processes.
    void addNodeRelation(const QString& from, const QString& to, ENodeRelationType type) override;
    void removeNodeRelation(const QString& from, const QString& to, ENodeRelationType type) override;
    QStringList relatedNodes(const QString& id, ENodeRelationType type) const override;
    bool isDestinationOfNodeRelation(const QString& id, ENodeRelationType type) const override;
    void startScanners(const std::string& name, unsigned interfaces, int limit) override;
    void stopScanners(const std::string& name) override;
    QString globalRecordingFolderPath() const override;
    QString defaultRecordingTransponderIP() const override;
    int bandwidth() const override;
    GlobalNetworkProxy& globalProxy() override;
    Environments& environments() override;
    QString activeEnvironment() const override;
    /// An unknown environment is not made the active one.
    void setActiveEnvironment(const QString& id) override;

    /// Adds the node that \a hint describes and returns its identifier.
    QString add(const NodeHint& hint);

    // What the contract only reads.
    void setGlobalRecordingFolderPath(const QString& path);
    void setDefaultRecordingTransponderIP(const QString& address);
    void setBandwidth(int bandwidth);

    /// What startScanners() and stopScanners() call; null if there is none.
    Scanning* scanning() const;
    void setScanning(std::unique_ptr<Scanning> scanning);

    /// Whether all nodes are in memory. Until then whatever needs them waits for that, but summary() and
    /// relatedNodes(), which look at the file.
    bool isLoaded() const;

    /// Summaries of all nodes, oldest first, without touching the disk.
    QVector<NodeSummary> summaries() const;
    /// Of the nodes as they were read, made when what is returned is called, in whichever thread. What was
    /// changed since was announced. Only until the end of loaded(), and once.
    std::function<QVector<NodeSummary>()> takeLoadedSummaries();

    /// The summary of one node; its id is empty when there is no such node.
    NodeSummary summary(const QString& id) const;

    /// The devices with this MAC address, in the notation of MACAddress::toString(true).
    QStringList nodesWithMac(const QString& mac) const;

    /// One property of all nodes that have it, in one look at the disk: of many nodes far cheaper than asking
    /// each. Passwords are sealed.
    typedef std::function<void(const NodeID& id, const QVariant& value)> Visit;
    void column(const QString& key, const Visit& visit) const;

    /// The audit log kept in the same file and the same transactions.
    AuditLog& auditLog();

    /// Where a ProgramLog for this database keeps its lines.
    LogStore& logStore();

    /// What was done to the database.
    StoredHistory& history();

    /// Which nodes are in editors, here and at other desks.
    NodeEditors& editors();

    // ChangeGrouping
    void enter(const Cause& cause, ScopeStoring storing) override;
    void leave() override;

    /// Does all that \a set says, as far as it can still be done: a node that is gone is not changed, one
    /// that is there is not added. False when something could not be read; nothing is done then.
    bool apply(const ChangeSet& set);

    /// From here on nothing is stored until endDraft(), which takes back what was changed under \a cause
    /// meanwhile and returns it: what a window would do can be shown before it is done. What else was changed
    /// stays, and is stored then. If nodes were removed, nothing is taken back, nor returned.
    void beginDraft(const Cause& cause);
    ChangeSet endDraft();

    /// Stores all changes now. False when that failed; storeFailed() has been emitted then. Looks for the key
    /// of the passwords again when the last try failed without it, which may take until the user has opened
    /// the keychain.
    bool flush(StoreWait wait = StoreWait::Blocking);

    /// Whether there is a key with which passwords can be stored.
    bool canStorePasswords() const;
    /// The keys of passwords may be others now: what waited for one is stored, and what was shown empty is
    /// read again.
    void takeNewKeys();

    typedef StoreOutcome Outcome;

    /// Runs \a work, in which no other program can change the database, and stores what it changed: what
    /// lookupHint() does not find there is not added by two programs. Others wait meanwhile, two seconds at
    /// most, so keep it short. Within it nothing else is stored or brought in. \a error tells why it was not
    /// stored or not run.
    Outcome runAlone(const std::function<void()>& work, StoreError* error,
                     StoreWait wait = StoreWait::Blocking);
    bool hasUnstoredChanges() const;

    /// Changes are on their way to the disk while the event loop goes on: many of them, or any while the file
    /// is still looked through. What takes longer than a moment should be shown.
    bool isStoring() const;
    /// How much of it is done, of 1000; 0 while it waits.
    int permilleStored() const;

    /// The nodes of which something is not stored, removed ones included.
    QStringList unstoredNodes() const;

    /// Goes back to what is stored, announcing every node that thereby changes, comes back or goes.
    void discardUnstoredChanges();

    /// Takes in what other processes stored since the last look.
    void syncForeignChanges();

    /// The same without waiting for the next look, and the rest of much in the next turns of the event loop.
    void syncSomeForeignChanges();

    /// The user may only read: beginUpdateNode() returns null, no scanner starts, and nothing else that would
    /// change nodes, relations, settings or environments does anything. What others change still arrives.
    bool isReadOnly() const;
    void setReadOnly(bool readOnly);

signals:
    /// Changes could not be stored; emitted once for each failed attempt.
    void storeFailed(const ko::StoreError& error);
    /// Changes that could not be stored before are stored now.
    void storeRecovered();
    /// isStoring() may have changed.
    void storing();
    /// Something could not be read: what is affected looks as if it were not there. Nothing is
    /// overwritten. Emitted from the event loop, once for each different error.
    void storeDamaged(const ko::StoreError& error);
    /// isLoaded() for sure, once, from the event loop.
    void loaded();
    /// A check in the background has ended: without an error, or the file must not be used any more.
    /// Nothing is written before it has ended, and nothing after an error.
    void checked(const ko::StoreError& error);
    /// Another process changed the active environment, the environments, or other settings.
    void settingsChanged();

private:
    class Private;
    HostNodeDB(std::unique_ptr<NodeStore> opened, Check check);
    const std::unique_ptr<Private> d;
};

} // namespace ko

#endif
