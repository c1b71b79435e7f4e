#ifndef TESTS_HOST_MANYNODES_H
#define TESTS_HOST_MANYNODES_H

#include "StoreTesting.h"

namespace testsupport {

/// Adds cameras with the properties of \a like to a file, past the host and so in a moment: "Camera 1" is
/// "camera-1", and so on.
inline void addByHand(const QString& file, const QString& like, int count)
{
    PlainSql sql(file);
    sql.run(QStringLiteral("BEGIN"));
    sql.run(QStringLiteral("INSERT INTO nodes (id, type, name, location, recording, lookup)"
                           " WITH RECURSIVE number (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM number"
                           " WHERE i < %1) SELECT 'camera-' || i, 2, 'Camera ' || i,"
                           " printf('10.1.%d.%d', i / 250, i % 250), 0, '' FROM number")
                .arg(count));
    sql.run(QStringLiteral("INSERT INTO node_properties (node, properties, mac, extension)"
                           " SELECT n, (SELECT properties FROM node_properties WHERE node = (SELECT n FROM"
                           " nodes WHERE id = '%1')), '', '' FROM nodes WHERE id LIKE 'camera-%'")
                .arg(like));
    sql.run(QStringLiteral("COMMIT"));
}

} // namespace testsupport

#endif
