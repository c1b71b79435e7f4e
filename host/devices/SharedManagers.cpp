#include "devices/SharedManagers.h"

#include <QNetworkAccessManager>
#include <QUrl>

namespace ko {

std::shared_ptr<QNetworkAccessManager> SharedManagers::managerFor(const QUrl& device,
                                                                  const QNetworkProxy& proxy)
{
    const QString place = device.authority();
    if (!m_manager || m_manager->proxy() != proxy || m_devices.size() >= MostSharing ||
        m_devices.contains(place)) {
        m_manager = std::make_shared<QNetworkAccessManager>();
        m_manager->setProxy(proxy);
        m_devices.clear();
    }
    m_devices.append(place);
    return m_manager;
}

} // namespace ko
