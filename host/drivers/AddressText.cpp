#include "drivers/AddressText.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace ko {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(AddressText)
};

bool isIpv4(const QString& host)
{
    static const QRegularExpression pattern(
        QStringLiteral("^(\\d{1,3})\\.(\\d{1,3})\\.(\\d{1,3})\\.(\\d{1,3})$"));
    const QRegularExpressionMatch match = pattern.match(host);
    const QStringList parts = match.capturedTexts().mid(1);
    return match.hasMatch() &&
           std::all_of(parts.begin(), parts.end(), [](const QString& part) { return part.toInt() <= 255; });
}

bool isHostName(const QString& host)
{
    static const QRegularExpression pattern(
        QStringLiteral("^(?=.{1,253}$)[A-Za-z0-9_]([A-Za-z0-9_-]{0,61}[A-Za-z0-9_])?"
                       "(\\.[A-Za-z0-9_]([A-Za-z0-9_-]{0,61}[A-Za-z0-9_])?)*\\.?$"));
    const QByteArray ascii = QUrl::toAce(host);
    return pattern.match(ascii.isEmpty() ? host : QString::fromLatin1(ascii)).hasMatch();
}

QString problemOf(const QString& host)
{
    static const QRegularExpression blank(QStringLiteral("\\s"));
    static const QRegularExpression numbers(QStringLiteral("^[\\d.]+$"));
    if (host.contains(blank))
        return Texts::tr("An address cannot contain spaces.");
    if (host.contains(QLatin1Char(':')))
        return QHostAddress(host).protocol() == QAbstractSocket::IPv6Protocol
                   ? QString()
                   : Texts::tr("This is neither an IPv6 address nor a host with a port.");
    if (numbers.match(host).hasMatch())
        return isIpv4(host) ? QString() : Texts::tr("An IP address has four numbers from 0 to 255.");
    return isHostName(host) ? QString()
                            : Texts::tr("A host name can contain only letters, digits, dots and hyphens.");
}

AddressText checked(AddressText address)
{
    QString problem = problemOf(address.host);
    if (problem.isEmpty() && (address.port == 0 || address.port > 65535))
        problem = Texts::tr("A port is a number from 1 to 65535.");
    if (problem.isEmpty())
        return address;
    AddressText bad;
    bad.problem = problem;
    return bad;
}

AddressText fromUrl(const QString& text)
{
    const QUrl url(text, QUrl::TolerantMode);
    AddressText address;
    if (!url.isValid() || url.host().isEmpty()) {
        address.problem = Texts::tr("The host in this URL cannot be read.");
        return address;
    }
    const QString scheme = url.scheme().toLower();
    const bool isWeb = scheme == QLatin1String("http") || scheme == QLatin1String("https");
    const bool isSecure = scheme == QLatin1String("https") || scheme == QLatin1String("rtsps");
    address.host = url.host();
    address.security = isSecure ? AddressText::Ssl : isWeb ? AddressText::Plain : AddressText::Unknown;
    address.port = url.port(isWeb ? (isSecure ? 443 : 80) : -1);
    address.user = url.userName(QUrl::FullyDecoded);
    address.password = url.password(QUrl::FullyDecoded);
    return checked(address);
}

} // namespace

AddressText AddressText::parse(const QString& text)
{
    static const QRegularExpression withPort(
        QStringLiteral("^(?:\\[([^\\]]*)\\]|([^:\\[\\]]+))(?::(\\d{1,9}))?$"));
    const QString typed = text.trimmed();
    AddressText address;
    if (typed.isEmpty())
        return address;
    if (typed.contains(QLatin1String("://")))
        return fromUrl(typed);
    const QRegularExpressionMatch match = withPort.match(typed);
    address.host = match.hasMatch() ? match.captured(1) + match.captured(2) : typed;
    if (!match.captured(3).isEmpty())
        address.port = match.captured(3).toInt();
    return checked(address);
}

} // namespace ko
