#ifndef KO_IMPORTLOGENTRY_H
#define KO_IMPORTLOGENTRY_H

#include "HostExport.h"
#include "ko/LogEntry.h"

namespace ko {

/// Audit entry "NImp": devices were added or changed by the import of a file.
class KO_HOST_EXPORT ImportLogEntry : public LogEntry
{
public:
    ImportLogEntry(const QString& fileName, int added, int changed, int refused);

    FourChars typeCode() const override;
    LogCategory category() const override;
    QString description() const override;
    QString title() const override;

private:
    TLogValue<QString> m_fileName;
    TLogValue<QString> m_added;
    TLogValue<QString> m_changed;
    TLogValue<QString> m_refused;
};

} // namespace ko

#endif
