#ifndef KO_DEVICEFILLING_H
#define KO_DEVICEFILLING_H

#include "InPortions.h"
#include "devices/DeviceChecks.h"
#include "devices/NodeFacts.h"
#include "ko/TrContext.h"

#include <QHash>
#include <QStringList>

namespace ko {

class HostNodeDB;

/// One thing that a device told, for the node that it would be stored in.
struct FillInRow
{
    QString node;
    QString name; ///< of the node
    NodeFact fact;
    bool isTicked = false; ///< to be stored
};

/// Asks the devices of nodes what they are, and stores what is chosen of it. A device that is not the one
/// which is known, or does not take the password, tells nothing.
class DeviceFilling : public QObject
{
    Q_OBJECT
    KO_TR_CONTEXT(DeviceFilling)

public:
    /// The database outlives it.
    explicit DeviceFilling(HostNodeDB& db, QObject* parent = nullptr);

    /// Once.
    void ask(const QStringList& nodes);

    int done() const { return m_unasked + m_checks.done(); }
    int total() const { return int(m_nodes.size()); }

    /// In the order of the nodes. After finished(), as the next.
    QVector<FillInRow> rows() const;

    /// "Name: why", in words for the user, of each that told nothing.
    QStringList silent() const;

    /// Stores what is ticked, as one change set with an entry in the audit log for each node. What is not as
    /// it was when the devices were asked stays as it is. Returns how many nodes were changed.
    int store(const QVector<FillInRow>& rows);

signals:
    void progressed();
    void finished();

private:
    struct Asked
    {
        QString name;
        DeviceTarget target;
        DeviceIdentity seen;
        QVector<NodeFact> facts;
        QString problem; ///< empty if it told something
    };

    void add(const QString& id);
    void start();
    void take(const DeviceReport& report);
    bool storeNode(const QString& id, const QVector<NodeFact>& facts);

    HostNodeDB& m_db;
    DeviceChecks m_checks;
    InPortions<QString> m_reading; ///< nodes
    QVector<DeviceTarget> m_targets;
    QStringList m_nodes;
    int m_unasked = 0; ///< of which nobody can be asked
    QHash<QString, Asked> m_asked;
};

} // namespace ko

#endif
