#ifndef KO_SCANNER_H
#define KO_SCANNER_H

#include "HostExport.h"
#include "discovery/DiscoveredDevice.h"
#include "model/TranslatableText.h"

#include <QObject>

namespace ko {

/// What a scanner is doing.
struct ScannerState
{
    enum Phase {
        Idle,
        Running,
        Done,       ///< looked everywhere; what listens for announcements is never done
        Cancelled,  ///< stopped before it was done
        Unavailable ///< cannot run now, see reason; it may come back by itself
    };

    Phase phase = Idle;
    int done = 0;            ///< addresses or devices looked at
    int total = 0;           ///< of how many; 0 when that is not known
    TranslatableText where;  ///< interface and range, such as "eth0, 10.0.0.0/24"
    TranslatableText reason; ///< why it is not available, for the user
};

/// One way to find devices on the network. The object lives in the GUI thread and never blocks it: the
/// work is done in a thread of its own. A thread that may have to wait for another program ends by itself
/// after stop(); only one that never does is waited for.
class KO_HOST_EXPORT Scanner : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The name by which NodeDB::startScanners() calls it, with all others of that name.
    virtual QString name() const = 0;

    /// What the user reads.
    virtual QString title() const { return name(); }

    /// Begins, or begins again when it was done; does nothing while it is running. \a interfaces is a bit
    /// set of interface indexes (bit 0 is index 1; interfaces from the 32nd on are always in), \a limit
    /// the largest number of devices to report, -1 for no limit.
    virtual void start(unsigned interfaces, int limit) = 0;

    /// Stops at once: nothing is reported any more when it has returned.
    virtual void stop() = 0;

    virtual ScannerState state() const = 0;

signals:
    /// In the GUI thread; a device may be reported again.
    void found(const QVector<ko::DiscoveredDevice>& devices);
    void stateChanged();
};

} // namespace ko

#endif
