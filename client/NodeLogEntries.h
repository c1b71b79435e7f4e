#ifndef KO_NODELOGENTRIES_H
#define KO_NODELOGENTRIES_H

#include "ko/LogEntry.h"

namespace ko {

/// What the client does to nodes and the library does not log: one entry with the node's name.
class NodeLogEntry : public LogEntry
{
public:
    LogCategory category() const override { return LogCategoryDevices; }

protected:
    explicit NodeLogEntry(const QString& name);

private:
    TLogValue<QString> m_name;
};

class NodeAddLogEntry : public NodeLogEntry
{
public:
    explicit NodeAddLogEntry(const QString& name);

    FourChars typeCode() const override;
    QString description() const override;
    QString title() const override;
};

class NodeRemoveLogEntry : public NodeLogEntry
{
public:
    explicit NodeRemoveLogEntry(const QString& name);

    FourChars typeCode() const override;
    QString description() const override;
    QString title() const override;
};

class NodeAcceptLogEntry : public NodeLogEntry
{
public:
    explicit NodeAcceptLogEntry(const QString& name);

    FourChars typeCode() const override;
    QString description() const override;
    QString title() const override;
};

class NodeClearPasswordLogEntry : public NodeLogEntry
{
public:
    explicit NodeClearPasswordLogEntry(const QString& name);

    FourChars typeCode() const override;
    QString description() const override;
    QString title() const override;
};

/// Lets stored entries be read back. To be called before the audit log is shown; again does no harm.
void registerNodeLogEntries();

} // namespace ko

#endif
