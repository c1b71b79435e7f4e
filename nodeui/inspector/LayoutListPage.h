#ifndef KO_LAYOUTLISTPAGE_H
#define KO_LAYOUTLISTPAGE_H

#include "NodeUIExport.h"

namespace ko {

class ILayoutAdapter;

/// A page with lists that init() leaves empty, because only the edit dialog knows what to offer.
class KO_NODEUI_EXPORT LayoutListPage
{
public:
    // The dialog looks for a page of this name in a tab of this name. Object names are part of the contract.
    static constexpr char TabName[] = "layoutOptions";
    static constexpr char Name[] = "layoutOptionsWidget";

    virtual ~LayoutListPage();

    /// Offers the adapter's layouts; null disables the list. The adapter is not kept.
    virtual void fillLayoutComboBox(const ILayoutAdapter* adapter) = 0;

    /// Offers the node itself and all cameras as sources of audio.
    virtual void fillAudioPathIdComboBox() = 0;
};

} // namespace ko

#endif
