#ifndef KO_LAYOUTADAPTER_H
#define KO_LAYOUTADAPTER_H

#include "interfaces/ILayoutAdapter.h"

namespace ko {

/// The standard layouts of the client's live view.
class LayoutAdapter : public ILayoutAdapter
{
public:
    QList<Layout> layouts() const override;
};

} // namespace ko

#endif
