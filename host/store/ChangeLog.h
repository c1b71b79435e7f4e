#ifndef KO_CHANGELOG_H
#define KO_CHANGELOG_H

#include "model/HistoryFilter.h"
#include "store/SqliteStore.h"

namespace ko {

/// The tables of what was changed: change sets with what they changed, and the audit log. By the same rows
/// processes tell each other of changes. Everything throws StoreFailure; nothing opens transactions.
class ChangeLog
{
public:
    /// What a row of the table of changes is about; the letters are stored. Its id is that of the node, of
    /// the source of the relation, or the key of the setting.
    enum Kind : char {
        NodeKind = 'N',
        RelationKind = 'R',
        SettingKind = 'S',
        EnvironmentsKind = 'E',
        EverythingKind = 'A' ///< a backup took the place of everything
    };

    struct Row
    {
        Kind kind;
        QString id;
    };

    /// With more changes than that, everything is looked at again: reading them one by one takes longer.
    static constexpr int MaxRead = 20000;

    explicit ChangeLog(SqliteStore& store);

    /// The number of the last change.
    qint64 revision();

    struct Rows
    {
        QVector<Row> rows;
        qint64 revision; ///< of the last one
        bool isMore;
    };

    /// The first changes after \a revision, at most \a count; none if all together are too many, or not all
    /// there.
    std::optional<Rows> since(qint64 revision, int count);

    /// The number of a change set; 0 if there is none.
    qint64 find(const Cause& cause);
    /// Makes it if there is none.
    qint64 numberOf(const Cause& cause);

    /// Returns the number of the row. \a before and \a after are ChangeCoding's.
    qint64 add(qint64 changeSet, const Row& row, const QString& before, const QString& after);

    /// At most \a count change sets after number \a after, in order.
    QVector<ChangeSet> sets(qint64 after, int count);

    /// At most \a count changes of a change set after the one with number \a after.
    ChangeSetPart part(qint64 number, qint64 after, int count);
    /// All changes of a change set that are about the same id, see Row.
    ChangeSet changesOf(qint64 number, const QString& id);
    /// At most \a count changes of change sets after \a changeSet, after the one with number \a after.
    LaterPart later(qint64 changeSet, qint64 after, int count);
    /// See NodeStore::silentChangeSets().
    QVector<ChangeSetRow> silentSets(qint64 before, int count);

    /// \a changeSet is 0 if nothing was changed.
    void addAudit(qint64 changeSet, const AuditRow& row);
    QVector<AuditRow> audit(const LogRange& range);
    qint64 auditCount();
    qint64 firstAuditWithChanges();

private:
    void readChanges(ChangeSet* set);
    void readAudit(ChangeSet* set);

    SqliteStore& m_store;
};

} // namespace ko

#endif
