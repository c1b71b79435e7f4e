#include "secrets/Secrets.h"

#include "ko/PropertyKeys.h"

namespace ko {

namespace Secrets {

const QStringList& properties()
{
    static const QStringList all = {PropertyKeys::Password, PropertyKeys::ProxyPassword,
                                    PropertyKeys::RecordingTransponderPassword};
    return all;
}

bool isSecret(const QString& property)
{
    return property.endsWith(QLatin1String("Password")) && properties().contains(property);
}

} // namespace Secrets

} // namespace ko
