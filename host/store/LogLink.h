#ifndef KO_LOGLINK_H
#define KO_LOGLINK_H

#include "model/LogFinding.h"
#include "store/SqliteFile.h"

#include <QByteArray>

#include <array>
#include <limits>

namespace ko {

/// BLAKE2b.
class LogHash
{
public:
    static constexpr int Size = 32; ///< bytes

    LogHash();
    LogHash& add(std::string_view bytes);
    LogHash& add(const QByteArray& bytes);
    LogHash& add(qint64 number);
    QByteArray result();

private:
    alignas(64) std::array<unsigned char, 384> m_state; ///< libsodium's, whose headers no user of ours needs
};

/// The rows of one of the logs, in order, each with a hash over it as it is stored.
class LogRows
{
public:
    static constexpr int Tables = 3; ///< as in LogFinding

    LogRows(SqliteFile& file, int table, qint64 after);

    bool isAtEnd() const { return m_isAtEnd; }
    qint64 number() const { return m_number; }
    const QByteArray& hash() const { return m_hash; }
    void next();

private:
    SqliteFile::Rows m_rows;
    const int m_columns;
    bool m_isAtEnd = false;
    qint64 m_number = 0;
    QByteArray m_hash;
};

#define KO_LINK_COLUMNS                                                                                      \
    " seq, kind, set_end, change_end, audit_end, sets, changes, audits, checks, hash, seal "

/// A link of the chain over the logs; see LogChain.
struct LogLink
{
    /// What it is over; the letters are stored.
    enum Kind : char {
        Beginning = 'B', ///< no rows
        Older = 'O',     ///< what was there when the chain began
        Commit = 'C',
        Foreign = 'F', ///< what somebody put in who makes no links
        Thinned = 'T'  ///< any of these, whose changes were taken out; see LogThinning
    };

    static constexpr int CheckSize = 4;                  ///< bytes of a row's hash, by which it is named
    static constexpr qint64 MaxNumber = qint64(1) << 53; ///< what has a larger one is none of ours
    static constexpr qint64 BeforeAll = std::numeric_limits<qint64>::min();

    qint64 number = 0; ///< 0: there is none
    char kind = 0;
    std::array<qint64, LogRows::Tables> ends = {BeforeAll, BeforeAll, BeforeAll}; ///< numbers of last rows
    std::array<qint64, LogRows::Tables> counts = {};                              ///< of rows
    QByteArray checks; ///< of the rows; of the beginning, what makes the log the only one
    QByteArray hash = QByteArray(LogHash::Size, '\0');
    QByteArray seal; ///< under the key; empty without one

    /// Of the columns KO_LINK_COLUMNS.
    static LogLink from(const SqliteFile::Rows& rows);

    /// The hash with the one of the link before; those of the rows are to be added.
    LogHash beginHash(const QByteArray& before) const;

    /// Of a thinned link: what is sealed of it, over the hashes of the rows that are left.
    QByteArray thinnedHash(const QByteArray& rowHashes) const;

    /// In the place of one with the same number.
    void store(SqliteFile& file) const;
};

} // namespace ko

#endif
