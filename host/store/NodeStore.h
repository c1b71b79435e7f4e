#ifndef KO_NODESTORE_H
#define KO_NODESTORE_H

#include "model/Delta.h"
#include "model/HistoryFilter.h"
#include "model/HistoryLimit.h"
#include "model/LogFinding.h"
#include "model/StoreError.h"
#include "model/UndoneChange.h"

#include <functional>
#include <memory>

namespace ko {

class StoreWriting;
class Vault;

/// The node database on a SQLite file: takes and gives values. Everything but open() throws StoreFailure
/// when it fails, with the file as it was.
class KO_HOST_EXPORT NodeStore
{
public:
    enum class Check {
        First, ///< the whole file is looked through for damage before it is opened
        ByUser ///< whoever opens calls findDamage(), and setSound() before the first write
    };

    /// Makes or migrates the file as needed; null and \a error when that cannot be done.
    static std::unique_ptr<NodeStore> open(const QString& file, StoreError* error, Check check);
    ~NodeStore();

    const QString& fileName() const;

    /// Of its passwords. What is given to commit() was sealed by it.
    const std::shared_ptr<Vault>& vault() const;

    /// From any thread, while the file is in use.
    static StoreError findDamage(const QString& file);
    void setSound();

    /// Whether the file was ever shared with a site.
    bool isShared();

    /// What was changed here and its site could not do, oldest first, until it is dismissed.
    QVector<UndoneChange> undoneChanges();
    void dismissUndone(const QVector<qint64>& numbers);

    /// Whether passwords may be there that an older version stored in the clear.
    bool isSealingPending();

    // Reading

    /// What is little, as it is now.
    struct Contents
    {
        qint64 revision;
        Settings settings;
        Environments::List environments;
    };
    Contents load();

    /// All nodes of \a file, which is in use, oldest first, and its relations in their order, as they are at
    /// one moment. From any thread. What is newer than a Contents comes again as news().
    static QVector<Relation> readNodes(const QString& file,
                                       const std::function<void(qint64 place, const PackedSummary&)>& visit);

    /// Of one node; its place is 0 if there is none.
    NodeRow node(const NodeID& id);
    QVector<Relation> relationsFrom(const NodeID& id);

    /// Tells of which nodes the properties are wanted, too.
    typedef std::function<bool(const NodeID&)> Wanted;

    /// What others changed since \a revision, at most this many changes; none if nobody has committed
    /// anything since the last call that left nothing.
    std::optional<Delta> news(qint64 revision, const Wanted& wanted, int count);
    Delta everything(const Wanted& wanted);

    /// None if the node is gone.
    std::optional<PropertyList> properties(const NodeID& id);

    /// Of many nodes together; one that is gone is not visited.
    void properties(const QStringList& ids,
                    const std::function<void(const NodeID&, const PropertyList&)>& visit);

    /// One property of all nodes that have it, by one statement.
    void column(const QString& key, const std::function<void(const NodeID&, const QVariant&)>& visit);

    /// The nodes with this MAC address, in the notation of MACAddress::toString(true).
    QStringList nodesWithMac(const QString& mac);

    /// The nodes with this text as "FactoryIP".
    QStringList nodesWithExtension(const QString& extension);

    /// The look-up keys of all nodes that have one.
    void lookupKeys(const std::function<void(const NodeID&, const QString&)>& visit);

    // Writing

    struct Batch
    {
        QVector<ChangeSet> sets; ///< in their order
        QVector<ProgramRow> programLines;
    };

    struct Commit
    {
        qint64 revision;
        QHash<NodeID, qint64> places; ///< of the nodes that were added
        QVector<NodeID> missingNodes; ///< to be changed, but not there: taken as removed
        /// By source: in their order, where some got their earlier places back.
        QHash<NodeID, QVector<Relation>> reordered;
        QVector<StoredSet> sets; ///< that changed something
    };

    typedef std::function<Batch(const Delta&)> Merge;

    /// Keeps other programs from writing, calls \a merge with what they changed since \a revision, and stores
    /// what that returns. All of it is on the disk when this returns, or nothing is stored.
    Commit commit(qint64 revision, const Wanted& wanted, const Merge& merge);

    /// The same but for storing, which another thread may do. As long as the writing is there, what is read
    /// is what the file had before, and nothing else is written nor looked for.
    std::shared_ptr<StoreWriting> begin(qint64 revision, const Wanted& wanted, const Merge& merge);

    // Logs

    /// The number of the newest change set; 0 if there is none.
    qint64 newestChangeSet();
    /// At most \a count change sets after number \a after, in order.
    QVector<ChangeSet> changeSets(qint64 after, int count);
    /// As a list shows it; none if there is no such change set.
    std::optional<ChangeSetRow> changeSetRow(qint64 number);
    /// Those among the \a count newest before number \a before that \a filter wants.
    HistoryPage history(const HistoryFilter& filter, qint64 before, int count);
    /// Of at most \a count nodes after those with which the last part ended.
    LastChangesPart lastChanges(qint64 after, int count);
    QVector<LastChange> lastChanges(const QStringList& nodes);
    /// At most \a count changes of a change set after those with which the last part ended.
    ChangeSetPart changes(qint64 number, qint64 after, int count);
    /// All that a change set changed of one node, with the relations that begin there, or of one setting;
    /// with an empty \a id of the environments.
    ChangeSet changesOf(qint64 number, const QString& id);
    /// At most \a count changes of change sets after \a changeSet, after those with which the last part
    /// ended.
    LaterPart later(qint64 changeSet, qint64 after, int count);
    /// Those before number \a before without an entry in the audit log, at most \a count, newest first.
    QVector<ChangeSetRow> silentChangeSets(qint64 before, int count);
    QVector<AuditRow> audit(const LogRange& range);
    qint64 auditCount();
    qint64 firstAuditWithChanges();
    /// Looks for what was altered in the logs of \a file, which may be in use; from any thread. \a known is
    /// where they ended when they were seen before. \a goOn is called with the number of entries so far, and
    /// ends it when it returns false: then, and with \a error when the file cannot be read, none.
    static std::optional<LogReport> verifyLogs(const QString& file, const LogEnd& known,
                                               const std::function<bool(qint64)>& goOn, StoreError* error);
    /// Of \a file, which may be in use; from any thread. Empty if it cannot be read.
    static LogEnd endOfLogs(const QString& file);
    /// Takes old details out of the history of \a file, which may be in use, in parts that keep others out
    /// for some milliseconds each; from any thread. \a goOn is called before each, and ends it when it
    /// returns false: what is done then is whole. Takes the key under which the logs are sealed. Nothing,
    /// with \a error, when it failed; see LogThinning for what is never thinned.
    static std::optional<ThinnedHistory> thinHistory(const QString& file, const HistoryLimit& limit,
                                                     const std::function<bool()>& goOn, StoreError* error);
    /// As the settings of \a file have it; none if it cannot be read.
    static HistoryLimit historyLimit(const QString& file);
    QVector<ProgramRow> programLines(const LogRange& range);
    qint64 programLineCount();

    /// Lines of the program log that are kept.
    static const int MaxProgramLines;

private:
    class Private;
    explicit NodeStore(std::unique_ptr<Private> opened);
    const std::unique_ptr<Private> d;
};

} // namespace ko

#endif
