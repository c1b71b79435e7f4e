#ifndef KO_INODEDRIVERCOMPONENT_H
#define KO_INODEDRIVERCOMPONENT_H

#include "interfaces/ICanBeLocalized.h"
#include "ko/Types.h"
#include "kom/smart.h"

namespace ko {

class InspectorWidget;
class NodeHint;

/// The driver of one node type: describes new nodes and builds their editors.
class KO_NODEUI_EXPORT INodeDriverComponent : public virtual ICanBeLocalized, public virtual IInterface
{
public:
    ~INodeDriverComponent() override;

    /// Builds the editor that fills \a hint, or null. The caller owns it and gives it a parent; the hint
    /// must outlive it. \a flags are the dialog's (see AddNodeDialog).
    virtual InspectorWidget* createInspectorWidget(NodeHint* hint, unsigned flags) = 0;

    /// A new, empty hint; null when the driver cannot describe a new node of this type.
    virtual kom::smart<NodeHint> createNodeHint(ENodeType type) = 0;

    static const char* ID();
};

} // namespace ko

#endif
