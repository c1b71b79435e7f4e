#ifndef KO_ISTORAGEOBJECT_H
#define KO_ISTORAGEOBJECT_H

#include "interfaces/IEventRetrievalInterface.h"

namespace ko {

/// A storage object with events.
class KO_NODEUI_EXPORT IStorageObject : public virtual IEventRetrievalInterface,
                                        public virtual ::komEventRetrievalInterface,
                                        public virtual ::komEventStorageStatusInterface,
                                        public virtual ::komInterface,
                                        public virtual IInterface
{
public:
    ~IStorageObject() override;
};

} // namespace ko

#endif
