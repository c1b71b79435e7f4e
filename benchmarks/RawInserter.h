#ifndef KO_BENCHMARKS_RAWINSERTER_H
#define KO_BENCHMARKS_RAWINSERTER_H

#include "RawSqlite.h"
#include "Site.h"

namespace bench {

/// Inserts cameras through the database library alone: the rows that the host writes for the same ones.
class RawInserter
{
public:
    explicit RawInserter(RawSqlite& database);

    void insert(const ko::NodeSummary& camera);

private:
    RawSqlite& m_database;
    const QMap<QString, QVariant> m_properties;
    RawSqlite::Statement m_node;
    RawSqlite::Statement m_property;
    RawSqlite::Statement m_change;
};

} // namespace bench

#endif
