#ifndef TESTS_SUPPORT_PROPERTYVIEW_H
#define TESTS_SUPPORT_PROPERTYVIEW_H

#include <QByteArrayList>

namespace testsupport {

/// Statements that show the properties of nodes to a connection as a table of (node, key, type, value), whose
/// rows it may change.
inline QByteArrayList propertyView()
{
    const QByteArray put =
        "UPDATE node_properties SET properties = json_set(properties, '$.\"' || NEW.key || '\"',"
        " json_array(NEW.type, NEW.value)) WHERE node = NEW.node";
    const QByteArray take =
        "UPDATE node_properties SET properties = json_remove(properties, '$.\"' || OLD.key || '\"')"
        " WHERE node = OLD.node";
    const auto trigger = [](const QByteArray& event, const QByteArray& statement, const QByteArray& row) {
        return "CREATE TEMP TRIGGER on_" + event + " INSTEAD OF " + event + " ON properties BEGIN " +
               statement +
               "; UPDATE node_properties SET mac = coalesce(json_extract(properties, '$.MACAddress[1]'), ''),"
               " extension = coalesce(json_extract(properties, '$.FactoryIP[1]'), '') WHERE node = " +
               row + ".node; END";
    };
    return {"CREATE TEMP VIEW properties AS SELECT p.node, j.key, json_extract(j.value, '$[0]') AS type,"
            " json_extract(j.value, '$[1]') AS value FROM node_properties p,"
            " json_each(CASE WHEN json_valid(p.properties) THEN p.properties END) j",
            trigger("INSERT", put, "NEW"), trigger("UPDATE", put, "NEW"), trigger("DELETE", take, "OLD")};
}

} // namespace testsupport

#endif
