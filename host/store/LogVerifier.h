#ifndef KO_LOGVERIFIER_H
#define KO_LOGVERIFIER_H

#include "secrets/Sealer.h"
#include "store/LogLink.h"

#include <deque>
#include <functional>
#include <optional>

namespace ko {

/// Follows the chain over the logs, see LogChain, from its beginning. Throws StoreFailure.
class LogVerifier
{
public:
    /// Is told how many rows were looked at; false ends it.
    typedef std::function<bool(qint64)> GoOn;

    LogVerifier(SqliteFile& file, const Sealer& sealer, const GoOn& goOn);

    /// \a known is where the log ended when it was seen before. None if it was ended.
    std::optional<LogReport> run(const LogEnd& known);

private:
    void verify(const LogLink& link, const LogLink& before);
    void compare(int table, const LogLink& link, const QByteArray& checks, LogHash* hash);
    void verifyThinned(const LogLink& link, const LogLink& before, const QByteArray& hash);
    void checkSeal(const LogLink& link, const QByteArray& hash);
    void compareWithKnown(const LogLink& link, const LogEnd& known);
    void takeRest(bool hasChain);
    void add(LogFinding::Kind kind, int table, qint64 entry);
    void addAtLink(LogFinding::Kind kind, const LogLink& link);
    void countRow();

    SqliteFile& m_file;
    const Sealer& m_sealer;
    const GoOn m_goOn;
    bool m_isEnded = false;
    LogReport m_report;
    std::deque<LogRows> m_rows; ///< of each table, at the first one that was not looked at
    qint64 m_firstEntry = 0;    ///< of the link that is looked at
    int m_firstTable = 0;
    bool m_isOtherKeyTold = false;
    bool m_isKnownSeen = false;
};

} // namespace ko

#endif
