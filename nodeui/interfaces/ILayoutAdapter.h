#ifndef KO_ILAYOUTADAPTER_H
#define KO_ILAYOUTADAPTER_H

#include "interfaces/IInterface.h"

#include <QList>
#include <QString>

namespace ko {

/// One layout of the client's live view. The library reads identifier and name only.
struct Layout
{
    int id = -1;
    QString name;
    int columns = 0;
    int rows = 0;
    bool isUserDefined = false;
    bool isVisible = true;
    QString description;
};

/// Supplies the layouts in which the client can present a node.
class KO_NODEUI_EXPORT ILayoutAdapter : public virtual IInterface
{
public:
    ~ILayoutAdapter() override;

    /// The layouts in the order in which they are offered.
    virtual QList<Layout> layouts() const = 0;
};

} // namespace ko

#endif
