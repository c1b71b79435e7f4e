#ifndef KO_NODERENAMELOGENTRY_H
#define KO_NODERENAMELOGENTRY_H

#include "NodeUIExport.h"

#include "ko/LogEntry.h"

namespace ko {

/// Audit record of a node's new name.
class KO_NODEUI_EXPORT NodeRenameLogEntry : public LogEntry
{
public:
    NodeRenameLogEntry(const QString& oldName, const QString& newName);
    ~NodeRenameLogEntry() override;

    FourChars typeCode() const override;
    LogCategory category() const override;
    QString description() const override;
    QString title() const override;

private:
    TLogValue<QString> m_oldName;
    TLogValue<QString> m_newName;
};

} // namespace ko

#endif
