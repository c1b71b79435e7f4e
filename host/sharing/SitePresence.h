#ifndef KO_SITEPRESENCE_H
#define KO_SITEPRESENCE_H

#include "HostExport.h"
#include "model/NodeEditor.h"

#include <QElapsedTimer>
#include <QStringList>

#include <mutex>
#include <optional>

namespace ko {

class SiteConnection;
struct SharingFailure;

/// Tells a site which nodes this desk has in editors, and asks which others have. Nothing depends on it: a
/// site without the tables for it, or one that is away, only leaves the others unknown.
class KO_HOST_EXPORT SitePresence
{
public:
    /// From any thread. The others are told of what is \a written, and asked for while any node is open.
    void setOpen(const QStringList& written, bool isAnyOpen);

    // In the thread of the connection.

    /// Over a new connection: the site knows nothing of this desk.
    void connected();
    /// Somebody opened or closed an editor.
    void noticed() { m_mustLook = true; }
    /// Does what is due. Returns what others edit if that changed.
    std::optional<QVector<NodeEditor>> look(SiteConnection& connection);
    /// There is no connection.
    std::optional<QVector<NodeEditor>> lost() { return changedTo({}); }

private:
    struct Open
    {
        QStringList written;
        bool isAnyOpen = false;
    };

    Open open();
    SharingFailure tell(SiteConnection& connection, const Open& open);
    SharingFailure ask(SiteConnection& connection, QVector<NodeEditor>* others);
    std::optional<QVector<NodeEditor>> changedTo(const QVector<NodeEditor>& others);

    std::mutex m_mutex; ///< of m_open
    Open m_open;
    QStringList m_told;
    QVector<NodeEditor> m_others;
    QElapsedTimer m_looked;
    bool m_mustLook = false;
    bool m_isMissing = false; ///< the site cannot tell
    bool m_hasFailed = false; ///< to be tried again after a while
};

} // namespace ko

#endif
