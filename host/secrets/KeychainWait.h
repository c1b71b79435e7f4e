#ifndef KO_KEYCHAINWAIT_H
#define KO_KEYCHAINWAIT_H

#include "HostExport.h"

#include <functional>

namespace ko {

/// Is told when the keychain lets wait, most likely because it asks the user for its password.
class KO_HOST_EXPORT KeychainWait
{
public:
    virtual ~KeychainWait();

    /// There was no answer for a second. True if the wait ends by \a giveUp alone, which may be called until
    /// end(); meanwhile the event loop takes the user's input. False if it ends by itself, after the patience
    /// that the keychain is given.
    virtual bool begin(const std::function<void()>& giveUp) = 0;

    /// After each begin().
    virtual void end() = 0;
};

} // namespace ko

#endif
