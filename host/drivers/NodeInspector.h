#ifndef KO_NODEINSPECTOR_H
#define KO_NODEINSPECTOR_H

#include "ko/Types.h"

namespace ko {

class InspectorWidget;
class NodeHint;

/// The editor of an existing node of a type: the pages of the type in a tab widget "tabWidget".
///
/// ok() runs the page cycle: the old name is recorded, every page writes into one update, in the order of
/// the tabs, and the change is logged. When the node changes elsewhere, fields that the user has not
/// touched follow and what he has typed stays. The caller owns the widget.
InspectorWidget* createNodeInspector(const NodeID& id, ENodeType type, bool readOnly, unsigned flags);

/// The editor of a node to be created; ok() lets every page write into \a hint, which must outlive it.
InspectorWidget* createHintInspector(NodeHint& hint, unsigned flags);

} // namespace ko

#endif
