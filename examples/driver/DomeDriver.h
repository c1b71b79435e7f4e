#ifndef EXAMPLE_DOMEDRIVER_H
#define EXAMPLE_DOMEDRIVER_H

#include "interfaces/INodeDriverComponent.h"

namespace example {

/// Stored with its nodes, so it stays the same for good. Those from 1000 on are for types of others.
const ko::ENodeType DomeType = ko::ENodeType(1000);

/// The editor of a dome camera that is there; its node makes it.
ko::InspectorWidget* createDomeInspector(const QString& id, bool readOnly, unsigned flags);

/// Makes the editors of new dome cameras.
class DomeDriver : public ko::INodeDriverComponent
{
public:
    kom::smart<ko::NodeHint> (*makeHint)(ko::ENodeType type); ///< hints are the host's, which sets this

    ko::InspectorWidget* createInspectorWidget(ko::NodeHint* hint, unsigned flags) override;
    kom::smart<ko::NodeHint> createNodeHint(ko::ENodeType type) override;
};

} // namespace example

#endif
