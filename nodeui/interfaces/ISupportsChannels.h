#ifndef KO_ISUPPORTSCHANNELS_H
#define KO_ISUPPORTSCHANNELS_H

#include "interfaces/IInterface.h"

namespace ko {

/// A device with several video channels, of which its node uses one.
class KO_NODEUI_EXPORT ISupportsChannels : public virtual IInterface
{
public:
    ~ISupportsChannels() override;

    /// Channels are counted from 1.
    virtual void setChannel(int channel) = 0;
    virtual int channel() const = 0;

    static const char* ID();
};

} // namespace ko

#endif
