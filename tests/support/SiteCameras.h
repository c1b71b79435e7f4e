#ifndef TESTS_SUPPORT_SITECAMERAS_H
#define TESTS_SUPPORT_SITECAMERAS_H

#include "support/HostFixture.h"
#include "support/SimulatedSite.h"

namespace testsupport {

/// The first \a count cameras of a site as they are added by hand: "Camera 1" and so on. Returns their ids.
inline QStringList addCameras(const HostFixture& host, const SimulatedSite& site, int count)
{
    QStringList ids;
    for (int camera = 1; camera <= count; ++camera) {
        const ko::DeviceTarget target = site.target(camera);
        const kom::smart<ko::NodeHint> hint =
            ko::NodeTypes::driver(ko::IPDeviceType)->createNodeHint(ko::IPDeviceType);
        auto& device = dynamic_cast<ko::NodeHintIPDevice&>(*hint);
        device.setName(QStringLiteral("Camera %1").arg(camera));
        device.address = target.address;
        device.port = target.port;
        device.user = target.user;
        device.password = target.password;
        ids.append(host.db()->add(device));
    }
    host.db()->flush();
    return ids;
}

} // namespace testsupport

#endif
