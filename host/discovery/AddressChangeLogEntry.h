#ifndef KO_ADDRESSCHANGELOGENTRY_H
#define KO_ADDRESSCHANGELOGENTRY_H

#include "HostExport.h"
#include "ko/LogEntry.h"

namespace ko {

/// Audit entry "NAdr": the user accepted the new address of a device that a scan had found there.
class KO_HOST_EXPORT AddressChangeLogEntry : public LogEntry
{
public:
    AddressChangeLogEntry(const QString& name, const QString& oldAddress, const QString& newAddress);

    FourChars typeCode() const override;
    LogCategory category() const override;
    QString description() const override;
    QString title() const override;

private:
    TLogValue<QString> m_name;
    TLogValue<QString> m_oldAddress;
    TLogValue<QString> m_newAddress;
};

} // namespace ko

#endif
