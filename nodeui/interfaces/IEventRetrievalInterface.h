#ifndef KO_IEVENTRETRIEVALINTERFACE_H
#define KO_IEVENTRETRIEVALINTERFACE_H

#include "interfaces/IInterface.h"
#include "kom/komInterface.h"

namespace ko {

/// Retrieval of stored events.
class KO_NODEUI_EXPORT IEventRetrievalInterface : public virtual ::komEventRetrievalInterface,
                                                  public virtual ::komEventStorageStatusInterface,
                                                  public virtual ::komInterface,
                                                  public virtual IInterface
{
public:
    ~IEventRetrievalInterface() override;
};

} // namespace ko

#endif
