#ifndef KOM_INTERFACE_H
#define KOM_INTERFACE_H

#include "PlatformExport.h"

/// Roots of the handle library's interfaces; components are only ever destroyed through them here.
class KO_PLATFORM_EXPORT komInterface
{
public:
    virtual ~komInterface();
};

class KO_PLATFORM_EXPORT komEventRetrievalInterface
{
public:
    virtual ~komEventRetrievalInterface();
};

class KO_PLATFORM_EXPORT komEventStorageStatusInterface
{
public:
    virtual ~komEventStorageStatusInterface();
};

#endif
