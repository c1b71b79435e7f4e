#ifndef KO_INSPECTORPAGES_H
#define KO_INSPECTORPAGES_H

#include "HostExport.h"
#include "drivers/InspectorPage.h"
#include "ko/Types.h"

#include <QVector>

namespace ko {

/// One page in the inspectors of a type.
struct PageSpec
{
    const char* tab;   ///< object name of the tab; neighbours with the same name share it
    const char* title; ///< title of the tab, in the translation context "NodeInspector"
    bool forNewNodes;  ///< whether the page has a part in creating a node
    std::unique_ptr<InspectorPage> (*create)(QWidget* parent);
};

/// The pages of a type, in the order in which they are shown and accepted.
KO_HOST_EXPORT QVector<PageSpec> pagesOf(ENodeType type);

/// Adds a page, as the last one, to the inspectors of a type from now on.
KO_HOST_EXPORT void addPage(ENodeType type, const PageSpec& page);

} // namespace ko

#endif
