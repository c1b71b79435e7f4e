#ifndef KO_NODECHANGELOGENTRY_H
#define KO_NODECHANGELOGENTRY_H

#include "NodeUIExport.h"

#include "ko/LogEntry.h"

namespace ko {

/// Audit record of a change of a node's properties.
class KO_NODEUI_EXPORT NodeChangeLogEntry : public LogEntry
{
public:
    explicit NodeChangeLogEntry(const QString& name);
    ~NodeChangeLogEntry() override;

    FourChars typeCode() const override;
    LogCategory category() const override;
    QString description() const override;
    QString title() const override;

private:
    TLogValue<QString> m_name;
};

} // namespace ko

#endif
