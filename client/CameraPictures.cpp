#include "CameraPictures.h"

#include "database/HostNodeDB.h"
#include "devices/KnownDevice.h"
#include "devices/NodeTarget.h"
#include "ko/GlobalNetworkProxy.h"
#include "ko/IPDeviceNode.h"

#include <utility>

namespace ko {

namespace {

const int EntryBytes = 1000; // of one without a picture, about

bool isRefusal(DeviceReport::State state)
{
    return state == DeviceReport::WrongPassword || state == DeviceReport::LockedOut ||
           state == DeviceReport::ClearPassword || state == DeviceReport::OtherDevice;
}

bool isKnown(const DeviceIdentity& known)
{
    return !known.serial.isEmpty() || !known.endpoint.isEmpty() || !known.realm.isEmpty() ||
           !known.certificate.isEmpty();
}

} // namespace

CameraPictures::CameraPictures(HostNodeDB& db, const StateOf& stateOf, QObject* parent)
    : QObject(parent)
    , m_db(db)
    , m_stateOf(stateOf)
    , m_pictures(MostBytes)
{
    connect(&m_checks, &DeviceChecks::checked, this, [this](const QVector<DeviceReport>& reports) {
        for (const DeviceReport& report : reports)
            take(report);
    });
    connect(&m_db, &NodeDB::nodeUpdated, this, &CameraPictures::nodeUpdated);
    connect(&m_db, &NodeDB::nodeRemoved, this, &CameraPictures::nodeRemoved);
}

bool CameraPictures::isOf(const QString& id) const
{
    return NodeTarget::isOf(m_db.summary(id));
}

/// In words for the user; empty if the device may be asked.
QString CameraPictures::whyNot(const QString& id, const IPDeviceNode& node) const
{
    const CameraState state = m_stateOf(id);
    if (isRefusal(state.state))
        return CameraStates::text(state.state);
    if (state.state != DeviceReport::Answers && !isKnown(KnownDevice::of(node)))
        return tr("Once the camera was checked (F5), its picture is here.");
    return NodeTarget::hasUnreadPassword(node) ? tr("Its password cannot be read.") : QString();
}

CameraPicture CameraPictures::picture(const QString& id) const
{
    if (const Kept* kept = m_pictures.object(id))
        return kept->picture;
    CameraPicture none;
    const auto node = m_db.node(id).cast<const IPDeviceNode>();
    if (!node.null())
        none.problem = whyNot(id, *node);
    return none;
}

bool CameraPictures::isFresh(const QString& id) const
{
    const Kept* kept = m_pictures.object(id);
    return kept && (kept->isRefused || !kept->age.hasExpired(Fresh));
}

void CameraPictures::want(const QString& id)
{
    if (isUnderWay(id))
        return;
    giveUp();
    const auto node = m_db.node(id).cast<const IPDeviceNode>();
    if (node.null() || !isOf(id) || isFresh(id) || !whyNot(id, *node).isEmpty())
        return;
    DeviceTarget target = NodeTarget::of(*node, m_db.globalProxy());
    target.wantsPicture = true;
    m_wanted = id;
    m_askedAs = m_fingerprint.of(*node);
    m_checks.start({target});
}

void CameraPictures::giveUp()
{
    m_checks.cancel();
    m_wanted.clear();
}

void CameraPictures::take(const DeviceReport& report)
{
    if (report.id != std::exchange(m_wanted, QString()))
        return;
    auto* kept = new Kept; // the cache owns it
    kept->picture.image = report.picture;
    kept->picture.time = report.time;
    kept->picture.problem =
        report.state == DeviceReport::Answers ? report.pictureProblem : CameraStates::text(report.state);
    kept->askedAs = m_askedAs;
    kept->isRefused = isRefusal(report.state);
    kept->age.start();
    m_pictures.insert(report.id, kept, EntryBytes + int(report.picture.sizeInBytes()));
    emit came(report.id);
}

void CameraPictures::forgetProblems(const QStringList& ids)
{
    for (const QString& id : ids) {
        const Kept* kept = m_pictures.object(id);
        if (kept && kept->picture.image.isNull())
            m_pictures.remove(id);
    }
}

/// What was seen at another place, or with another password, says nothing any more.
void CameraPictures::nodeUpdated(const NodeID& id)
{
    const Kept* kept = m_pictures.object(id);
    if (!kept && !isUnderWay(id))
        return;
    const auto node = m_db.node(id).cast<const IPDeviceNode>();
    const QByteArray now = node.null() ? QByteArray() : m_fingerprint.of(*node);
    if (kept && kept->askedAs != now)
        m_pictures.remove(id);
    if (isUnderWay(id) && m_askedAs != now)
        giveUp();
}

void CameraPictures::nodeRemoved(const NodeID& id)
{
    m_pictures.remove(id);
    if (isUnderWay(id))
        giveUp();
}

} // namespace ko
