#ifndef KO_NODE_H
#define KO_NODE_H

#include "ko/PropertyAccess.h"
#include "ko/Types.h"

#include <QIcon>

namespace ko {

class InspectorWidget;
class NodeHint;

/// One entry of the node database.
///
/// NodeDB::node() hands out read-only snapshots; NodeDB::beginUpdateNode() hands out the one writable
/// copy that NodeDB::endUpdateNode() stores.
class KO_PLATFORM_EXPORT Node : public PropertyAccess
{
public:
    virtual QString id() const = 0;

    /// Display name as the user gave it; empty when the node was never named. Plain text. The same text
    /// is the string property "Name".
    virtual QString name() const = 0;
    virtual QIcon icon() const = 0;

    /// Builds the editor of this node. The caller owns it and gives it a parent.
    /// \a flags are the dialog's (see EditNodeDialog).
    virtual InspectorWidget* createInspectorWidget(bool readOnly, unsigned flags) const = 0;

    /// Copies name and properties of \a hint into this node; properties that the hint lacks stay.
    virtual void takeOverProperties(const NodeHint& hint) = 0;

    /// The pointer that the hint carried when this process created the node. Never dereferenced by the
    /// database; without meaning unless hasCreationContext().
    virtual void* creationContext() const = 0;
    virtual bool hasCreationContext() const = 0;

    ENodeType type;

protected:
    explicit Node(ENodeType nodeType);
};

} // namespace ko

#endif
