#ifndef KO_CAMERAPICTURES_H
#define KO_CAMERAPICTURES_H

#include "CameraState.h"
#include "DeviceFingerprint.h"
#include "devices/DeviceChecks.h"
#include "ko/TrContext.h"
#include "ko/Types.h"

#include <QCache>
#include <QElapsedTimer>

#include <functional>

namespace ko {

class HostNodeDB;
class IPDeviceNode;

/// What a camera sees, or why nobody knows.
struct CameraPicture
{
    QImage image;    ///< null when there is none
    QString problem; ///< in words for the user, when there is none
    QDateTime time;
};

/// Fetches pictures of cameras while somebody looks, one at a time, and keeps some in memory.
///
/// Only cameras that were checked are asked: passing over a row of the list sends no password to a device
/// that nobody knows. One that refused it is not asked again until it is checked or its credentials change.
class CameraPictures : public QObject
{
    Q_OBJECT
    KO_TR_CONTEXT(CameraPictures)

public:
    enum Limits {
        MostBytes = 16 << 20, ///< of all pictures that are kept
        Fresh = 60000         ///< ms, for which a picture is not fetched again
    };

    typedef std::function<CameraState(const QString& id)> StateOf;

    /// The database outlives it. \a stateOf says what the last check of a camera said.
    CameraPictures(HostNodeDB& db, const StateOf& stateOf, QObject* parent = nullptr);

    /// Whether the node is one of which there could be a picture.
    bool isOf(const QString& id) const;

    /// The last one, or what came instead; with neither when it was not asked yet, and may be.
    CameraPicture picture(const QString& id) const;

    /// Fetches it, unless there is a fresh one. What was under way for another one is given up.
    void want(const QString& id);
    bool isUnderWay(const QString& id) const { return !id.isEmpty() && m_wanted == id; }

    /// Nobody looks any more.
    void giveUp();

    /// They were checked: who refused may be asked again.
    void forgetProblems(const QStringList& ids);

signals:
    /// Of a camera that was wanted.
    void came(const QString& id);

private:
    struct Kept
    {
        CameraPicture picture;
        QByteArray askedAs;
        QElapsedTimer age;
        bool isRefused = false;
    };

    QString whyNot(const QString& id, const IPDeviceNode& node) const;
    bool isFresh(const QString& id) const;
    void take(const DeviceReport& report);
    void nodeUpdated(const NodeID& id);
    void nodeRemoved(const NodeID& id);

    HostNodeDB& m_db;
    const StateOf m_stateOf;
    const DeviceFingerprint m_fingerprint;
    DeviceChecks m_checks;
    QCache<QString, Kept> m_pictures; ///< by the identifier of the node
    QString m_wanted;                 ///< empty when nothing is under way
    QByteArray m_askedAs;             ///< that one
};

} // namespace ko

#endif
