#ifndef KO_GENERICLOGENTRY_H
#define KO_GENERICLOGENTRY_H

#include "HostExport.h"
#include "ko/LogEntry.h"

#include <memory>
#include <vector>

namespace ko {

/// A stored entry of a kind that this program does not know: its code and its values as they stand.
class KO_HOST_EXPORT GenericLogEntry : public LogEntry
{
public:
    typedef QList<QPair<FourChars, QString>> Values;

    GenericLogEntry(FourChars code, const Values& values);

    FourChars typeCode() const override { return m_code; }
    LogCategory category() const override;
    QString description() const override;
    QString title() const override;

private:
    const FourChars m_code;
    std::vector<std::unique_ptr<TLogValue<QString>>> m_owned;
};

} // namespace ko

#endif
