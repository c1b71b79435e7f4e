#ifndef KO_CHANGECODING_H
#define KO_CHANGECODING_H

#include "HostExport.h"
#include "model/ChangeSet.h"

namespace ko {

/// One side of a change, before or after, as the store keeps it: JSON that an administrator can read. What is
/// not there has a null text.
namespace ChangeCoding {

/// Of a node, with its type and place if it is there on one side only. \a properties are those of \a values
/// as JSON, if they were made for something else already.
KO_HOST_EXPORT QString text(const std::optional<NodeValues>& values, const NodeChange& change,
                            const QString& properties = QString());

/// Fills in what text() gave, with type and place where they stand there.
KO_HOST_EXPORT std::optional<NodeValues> nodeValues(const QString& text, NodeChange* change);

KO_HOST_EXPORT QString text(const RelationChange& change);
KO_HOST_EXPORT RelationChange relationChange(const NodeID& source, const QString& before,
                                             const QString& after);

KO_HOST_EXPORT QString text(const Environments::List& list);
KO_HOST_EXPORT Environments::List environments(const QString& text);

} // namespace ChangeCoding

} // namespace ko

#endif
