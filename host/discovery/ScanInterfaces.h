#ifndef KO_SCANINTERFACES_H
#define KO_SCANINTERFACES_H

namespace ko {

/// Whether the interface is in the bit set that Scanner::start() takes. One whose index is not known, and
/// those beyond the bits, always are.
inline bool isScanned(unsigned interfaces, int index)
{
    return index < 1 || index > 31 || (interfaces & (1u << (index - 1)));
}

} // namespace ko

#endif
