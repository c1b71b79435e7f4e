#ifndef KO_NODEEDITORS_H
#define KO_NODEEDITORS_H

#include "HostExport.h"
#include "model/NodeEditor.h"

#include <QObject>
#include <QStringList>

namespace ko {

/// Which nodes are in an editor: those of this program, and those at the other desks of a shared database, as
/// far as somebody tells them with setOthers(). Belongs to the GUI thread.
class KO_HOST_EXPORT NodeEditors : public QObject
{
    Q_OBJECT

public:
    /// Whoever only reads is told of others, but others are not told of whoever only reads.
    enum class Access { Read, Write };

    using QObject::QObject;

    /// An editor of \a node is open until close(), as often as it was opened.
    void open(const QString& node, Access access);
    void close(const QString& node, Access access);

    const QStringList& written() const { return m_written; }
    bool isAnyOpen() const { return !m_written.isEmpty() || !m_read.isEmpty(); }

    QVector<NodeEditor> others(const QString& node) const;
    void setOthers(const QVector<NodeEditor>& others);

signals:
    void openChanged();
    void othersChanged();

private:
    QStringList& opened(Access access) { return access == Access::Write ? m_written : m_read; }

    QStringList m_written;
    QStringList m_read;
    QVector<NodeEditor> m_others;
};

} // namespace ko

#endif
