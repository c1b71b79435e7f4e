#ifndef KO_SITEVERIFICATION_H
#define KO_SITEVERIFICATION_H

#include "sharing/SiteConnection.h"
#include "store/SharedLog.h"

#include <functional>

namespace ko {

/// Compares a file with its site, row by row, and what the site says of its past with what it said before.
class KO_HOST_EXPORT SiteVerification
{
public:
    enum class Verdict {
        Same,
        Different,
        Changing, ///< one of them has what the other has not got yet: to be tried again
        Failed,   ///< see failure()
        Ended     ///< by the progress
    };

    /// Called now and then with the rows that were compared; ends it when it returns false.
    typedef std::function<bool(qint64 rows)> Progress;

    /// Both outlive it. \a connection is open. Throws StoreFailure.
    SiteVerification(SharedLog& log, SiteConnection& connection, Progress progress);

    Verdict run();

    qint64 rows() const { return m_rows; }
    /// The first row that differs, as the file has it, or as the site has it if the file lacks it.
    const QString& difference() const { return m_difference; }
    const SharingFailure& failure() const { return m_failure; }

private:
    bool compareChain(qint64 last);
    bool compare(SharedTable table, const SharedRow& here);
    bool next(SharedTable table, SharedRow* row);
    bool goOnTo(SharedTable table);
    bool hasMore();
    bool differs(const QByteArray& row);

    SharedLog& m_log;
    SiteConnection& m_connection;
    const Progress m_progress;
    SharedTable m_table = SharedTable::Nodes;
    QVector<SharedRow> m_there; ///< read ahead
    int m_index = 0;
    qint64 m_place = 0;
    qint64 m_rows = 0;
    Verdict m_verdict = Verdict::Same;
    QString m_difference;
    SharingFailure m_failure;
};

} // namespace ko

#endif
