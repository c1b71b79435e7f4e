#include "KnownSites.h"

#include "secrets/Keyring.h"
#include "sharing/SiteAddress.h"

#include <QCryptographicHash>
#include <QDir>
#include <QSettings>
#include <QStandardPaths>

namespace ko {

namespace KnownSites {

namespace {

const int mostRecent = 10;
const char passwordKey[] = "/password";
const char recentKey[] = "sites/recent";

/// An address holds signs that a key may not.
QString groupOf(const QString& address)
{
    const QByteArray digest = QCryptographicHash::hash(address.toUtf8(), QCryptographicHash::Sha256);
    return QStringLiteral("sites/") + QString::fromLatin1(digest.toHex().left(32));
}

} // namespace

Site find(const QString& address)
{
    const QString plain = SiteAddress::withoutPassword(address);
    QSettings settings;
    settings.beginGroup(groupOf(plain));
    return {plain, settings.value(QStringLiteral("id")).toString(),
            settings.value(QStringLiteral("mayWrite"), true).toBool()};
}

void remember(const Site& site)
{
    const QString plain = SiteAddress::withoutPassword(site.address);
    QSettings settings;
    QStringList all = recent();
    all.removeAll(plain);
    all.prepend(plain);
    settings.setValue(QLatin1String(recentKey), QStringList(all.mid(0, mostRecent)));
    settings.beginGroup(groupOf(plain));
    settings.setValue(QStringLiteral("id"), site.id);
    settings.setValue(QStringLiteral("mayWrite"), site.mayWrite);
}

QString withKeptPassword(const QString& address)
{
    const QString plain = SiteAddress::withoutPassword(address);
    if (plain != address)
        return address;
    const QString sealed = QSettings().value(groupOf(plain) + QLatin1String(passwordKey)).toString();
    if (sealed.isEmpty())
        return address;
    return SiteAddress::withPassword(plain, Keyring::ofInstallation()
                                                .key()
                                                ->sealer.open(sealed, plain, QLatin1String(passwordKey))
                                                .value_or(QString()));
}

bool keepPassword(const QString& address, bool keep)
{
    const QString plain = SiteAddress::withoutPassword(address);
    const QString password = SiteAddress::parse(address).password;
    QSettings settings;
    settings.remove(groupOf(plain) + QLatin1String(passwordKey));
    if (!keep || password.isEmpty())
        return true;
    const QString sealed =
        Keyring::ofInstallation().key()->sealer.seal(password, plain, QLatin1String(passwordKey));
    if (!sealed.isEmpty())
        settings.setValue(groupOf(plain) + QLatin1String(passwordKey), sealed);
    return !sealed.isEmpty();
}

QStringList recent()
{
    return QSettings().value(QLatin1String(recentKey)).toStringList();
}

QString folder()
{
    const QDir data(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    data.mkpath(QStringLiteral("sites"));
    return data.filePath(QStringLiteral("sites"));
}

} // namespace KnownSites

} // namespace ko
