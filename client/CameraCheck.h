#ifndef KO_CAMERACHECK_H
#define KO_CAMERACHECK_H

#include "CameraState.h"
#include "DeviceFingerprint.h"
#include "InPortions.h"
#include "devices/DeviceChecks.h"
#include "ko/TrContext.h"
#include "ko/Types.h"
#include "model/Cause.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QTimer>

namespace ko {

class HostNodeDB;
class IPDeviceNode;

/// Checks cameras of the database, and knows until when what was found holds: a camera whose address or
/// credentials are changed is not checked any more, also if it is changed meanwhile.
///
/// What an answering camera is known by is remembered with its node, all of one check as one change set.
/// Nothing waits: nodes are read in portions, devices asked in another thread.
class CameraCheck : public QObject
{
    Q_OBJECT
    KO_TR_CONTEXT(CameraCheck)

public:
    enum Limits {
        StoreInterval = 60, ///< ms: each commit waits for the disk, whatever it holds
        StoredAtOnce = 20   ///< cameras
    };

    typedef QHash<QString, CameraState> States; ///< by the identifier of the node

    /// The database outlives the check.
    explicit CameraCheck(HostNodeDB& db, QObject* parent = nullptr);

    /// Each node has one result; what has no address or is not a device is skipped. Not while one is running.
    void start(const QStringList& nodes);

    /// What was found until then stays.
    void cancel();

    bool isRunning() const { return m_isRunning; }
    int done() const { return int(m_results.size()) + m_gone; }
    int total() const { return m_total; }

    /// Of the last one, also while it is running.
    const States& results() const { return m_results; }
    int skipped() const { return m_skipped; }

signals:
    /// New results, or cameras that are not checked any more.
    void found(const ko::CameraCheck::States& states);
    void progressed();

    /// After the last result, or after cancel().
    void finished();

private:
    void read(const QString& id);
    void ask();
    void take(const DeviceReport& report);
    void tell();
    void rememberSome(int most);
    void remember(const QString& id, const DeviceIdentity& seen);
    void endIfDone();
    bool isAsChecked(const IPDeviceNode& node) const;
    void nodeUpdated(const NodeID& id);
    void nodeRemoved(const NodeID& id);
    void lookAtUpdated();
    void end();

    HostNodeDB& m_db;
    DeviceChecks m_checks;
    InPortions<QString> m_reading;                         ///< nodes
    InPortions<DeviceReport> m_reports;                    ///< not taken yet
    std::deque<std::pair<QString, DeviceIdentity>> m_news; ///< to be remembered
    QTimer m_storing;
    QTimer m_looking;
    const DeviceFingerprint m_fingerprint;
    QVector<DeviceTarget> m_targets;
    QHash<QString, QByteArray> m_checkedAs; ///< of each camera that has a result, or waits for it
    QSet<QString> m_updated;
    QString m_remembered; ///< whose change is our own
    States m_results;
    States m_untold; ///< taken in this portion
    Cause m_cause;
    int m_total = 0;
    int m_gone = 0; ///< removed meanwhile
    int m_skipped = 0;
    bool m_isRunning = false;
    bool m_isAsked = false; ///< and all reports have come
};

} // namespace ko

#endif
