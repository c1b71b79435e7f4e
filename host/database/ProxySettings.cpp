#include "database/ProxySettings.h"

#include "ko/GlobalNetworkProxy.h"
#include "secrets/Secrets.h"
#include "secrets/Vault.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

namespace ko {

namespace ProxySettings {

namespace {

constexpr char Use[] = "proxy.use";
constexpr char Address[] = "proxy.address";
constexpr char Port[] = "proxy.port";
constexpr char User[] = "proxy.user";
constexpr char SavePassword[] = "proxy.savePassword";
constexpr char Exceptions[] = "proxy.exceptions";

/// To be opened or sealed as.
const auto owner = QLatin1String(Secrets::Settings);
const auto password = QLatin1String(Secrets::GlobalProxyPassword);

constexpr int DefaultPort = 8080; // of a database in which none was set yet

} // namespace

Settings fromProxy(const GlobalNetworkProxy& proxy, const Settings& before, Vault& vault)
{
    const QJsonArray exceptions = QJsonArray::fromStringList(proxy.exceptions());
    Settings settings;
    const auto set = [&settings](const char* key, const QString& value) {
        settings.insert(QLatin1String(key), value);
    };
    set(Use, QString::number(proxy.useProxy()));
    set(Address, proxy.proxyAddress());
    set(Port, QString::number(proxy.proxyPort()));
    set(User, proxy.proxyUser());
    settings.insert(password, proxy.saveProxyPassword()
                                  ? vault.seal(owner, password, proxy.proxyPassword(), before.value(password))
                                  : QString());
    set(SavePassword, QString::number(proxy.saveProxyPassword()));
    set(Exceptions, QString::fromUtf8(QJsonDocument(exceptions).toJson(QJsonDocument::Compact)));
    return settings;
}

void toProxy(const Settings& settings, GlobalNetworkProxy& proxy, Vault& vault)
{
    const auto get = [&settings](const char* key) { return settings.value(QLatin1String(key)); };
    const bool savePassword = get(SavePassword).toInt() != 0;
    NetworkProxy stored;
    stored.setUseProxy(get(Use).toInt() != 0);
    const QString port = get(Port);
    stored.setProxyAddress(get(Address), port.isEmpty() ? DefaultPort : port.toInt());
    stored.setProxyUser(get(User), savePassword ? vault.open(owner, password, settings.value(password))
                                                : proxy.proxyPassword());
    stored.setSaveProxyPassword(savePassword);
    QStringList patterns;
    const QJsonArray exceptions = QJsonDocument::fromJson(get(Exceptions).toUtf8()).array();
    for (const QJsonValue& pattern : exceptions)
        patterns.append(pattern.toString());
    proxy.assign(stored, patterns);
}

} // namespace ProxySettings

} // namespace ko
