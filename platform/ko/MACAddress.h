#ifndef KO_MACADDRESS_H
#define KO_MACADDRESS_H

#include "PlatformExport.h"

#include <QString>

namespace ko {

/// A 48-bit IEEE 802 MAC address, or none.
class KO_PLATFORM_EXPORT MACAddress
{
public:
    MACAddress() = default;

    /// Reads twelve hexadecimal digits of either case, in one run or in pairs joined by ':', '-' or
    /// blanks, or in fours joined by '.'. Any other text gives a null address.
    explicit MACAddress(const QString& text);

    bool isNull() const { return !m_valid; }

    /// The canonical upper-case text, pairs joined by ':' or, without \a separators, in one run; an
    /// empty text for a null address.
    QString toString(bool separators) const;

    friend bool operator==(const MACAddress& a, const MACAddress& b)
    {
        return a.m_valid == b.m_valid && a.m_value == b.m_value;
    }
    friend bool operator!=(const MACAddress& a, const MACAddress& b) { return !(a == b); }

private:
    quint64 m_value = 0;
    bool m_valid = false;
};

} // namespace ko

#endif
