#ifndef KO_BENCHMARKS_RAWINSERTER_H
#define KO_BENCHMARKS_RAWINSERTER_H

#include "RawSqlite.h"
#include "Site.h"

namespace bench {

/// All that a new camera carries, as it is stored.
QString propertiesOfACamera();

/// Inserts cameras through the database library alone: the rows that the host writes for the same ones.
class RawInserter
{
public:
    explicit RawInserter(RawSqlite& database);

    void insert(const ko::NodeSummary& camera);

private:
    RawSqlite& m_database;
    const QString m_properties;
    RawSqlite::Statement m_node;
    RawSqlite::Statement m_property;
    RawSqlite::Statement m_change;
};

} // namespace bench

#endif
