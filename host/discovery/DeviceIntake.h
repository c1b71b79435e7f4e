#ifndef KO_DEVICEINTAKE_H
#define KO_DEVICEINTAKE_H

#include "HostExport.h"
#include "discovery/DiscoveredDevice.h"
#include "ko/Types.h"

#include <QObject>

#include <memory>

namespace ko {

class HostNodeDB;
class Scanner;

/// A device of the database that seems to answer at another address now.
struct AddressChange
{
    QString nodeId;
    QString name; ///< of the node
    QString oldAddress;
    QString newAddress;
    QString macAddress; ///< by which it was recognised; anybody can claim it

    friend bool operator==(const AddressChange& a, const AddressChange& b)
    {
        return a.nodeId == b.nodeId && a.newAddress == b.newAddress;
    }
};

/// Makes nodes of what the scanners of a database find. See docs/lookup.md for what is one device.
///
/// Nothing from the network is trusted: texts are cleaned and cut, what has no usable address is left
/// out, user and password are never taken from there, and a device that the database knows at another
/// address is not moved but noted for the user to decide. The work is done in slices of a few
/// milliseconds between other events; what exceeds the limits is left out, with one line in the log for
/// each scan.
class KO_HOST_EXPORT DeviceIntake : public QObject
{
    Q_OBJECT

public:
    enum Limits {
        WaitingLimit = 50000,   ///< sightings not looked at yet
        DevicesPerScan = 20000, ///< new devices from one start of a scanner to the next
        RememberedLimit = 40000,
        ChangesLimit = 1000,
        NameLength = 100,
        TextLength = 64 ///< model and version
    };

    /// The database outlives the intake.
    explicit DeviceIntake(HostNodeDB& db);
    ~DeviceIntake() override;

    /// Takes what \a scanner finds from now on.
    void attach(Scanner& scanner);

    /// Another scan begins: nodes that were removed since may be found again.
    void beginScan();

    /// Whether everything that was found so far is dealt with.
    bool isIdle() const;

    QVector<AddressChange> addressChanges() const;

    /// Gives the nodes their new addresses, with an entry in the audit log for each. A change whose node
    /// is gone or has got another address meanwhile is only dropped.
    void accept(const QVector<AddressChange>& changes);

    /// Drops the changes; they are not noted again while the program runs.
    void dismiss(const QVector<AddressChange>& changes);

public slots:
    void take(const QVector<ko::DiscoveredDevice>& devices);

signals:
    void addressChangesChanged();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ko

#endif
