#ifndef KO_SITECATCHUP_H
#define KO_SITECATCHUP_H

#include "sharing/SharingTypes.h"

#include <QEventLoop>

#include <functional>

namespace ko {

/// Brings a file and its site to the same state, both ways, while it shows how far that is.
class SiteCatchUp : public QObject
{
    Q_OBJECT

public:
    enum class End { UpToDate, Away, Refused, Cancelled };

    /// \a patience: how long the server may be away, in ms; negative: as long as it likes.
    SiteCatchUp(const QString& file, const QString& address, int patience);

    /// Runs an event loop; \a show is called in it whenever something has changed.
    End run(const std::function<void(const SharingState&)>& show);

    const SharingState& state() const { return m_state; }

    void cancel();

private:
    void end(End how);

    const QString m_file;
    const QString m_address;
    const int m_patience;
    QEventLoop m_loop;
    SharingState m_state;
    End m_end = End::Cancelled;
};

} // namespace ko

#endif
