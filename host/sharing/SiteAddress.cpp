#include "sharing/SiteAddress.h"

#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

#include <libpq-fe.h>

namespace ko {

namespace SiteAddress {

bool isSite(const QString& text)
{
    return text.startsWith(QLatin1String("postgresql://")) || text.startsWith(QLatin1String("postgres://"));
}

QString refusal(const QString& address)
{
    char* message = nullptr;
    PQconninfoOption* const options = PQconninfoParse(address.toUtf8().constData(), &message);
    PQconninfoFree(options);
    QString text = options ? QString() : QString::fromUtf8(message ? message : "out of memory").trimmed();
    PQfreemem(message);
    return text;
}

Parts parse(const QString& address)
{
    Parts parts;
    const struct
    {
        const char* keyword;
        QString* value;
    } known[] = {{"host", &parts.host}, {"port", &parts.port},         {"dbname", &parts.database},
                 {"user", &parts.user}, {"password", &parts.password}, {"sslmode", &parts.tls}};
    PQconninfoOption* const options = PQconninfoParse(address.toUtf8().constData(), nullptr);
    for (const PQconninfoOption* option = options; option && option->keyword; ++option) {
        for (const auto& each : known) {
            if (option->val && qstrcmp(option->keyword, each.keyword) == 0)
                *each.value = QString::fromUtf8(option->val);
        }
    }
    PQconninfoFree(options);
    return parts;
}

QString compose(const Parts& parts)
{
    const auto encoded = [](const QString& text) {
        return QString::fromLatin1(QUrl::toPercentEncoding(text));
    };
    QStringList query;
    const bool isSocket = parts.host.startsWith(QLatin1Char('/'));
    if (isSocket)
        query.append(QLatin1String("host=") + encoded(parts.host));
    if (isSocket && !parts.port.isEmpty())
        query.append(QLatin1String("port=") + encoded(parts.port));
    if (!parts.tls.isEmpty())
        query.append(QLatin1String("sslmode=") + encoded(parts.tls));
    QString text = QStringLiteral("postgresql://");
    if (!parts.user.isEmpty())
        text += encoded(parts.user) + QLatin1Char('@');
    if (!isSocket && parts.host.contains(QLatin1Char(':'))) // of IPv6
        text += QLatin1Char('[') + parts.host + QLatin1Char(']');
    else if (!isSocket)
        text += encoded(parts.host);
    if (!isSocket && !parts.port.isEmpty())
        text += QLatin1Char(':') + encoded(parts.port);
    text += QLatin1Char('/') + encoded(parts.database);
    if (!query.isEmpty())
        text += QLatin1Char('?') + query.join(QLatin1Char('&'));
    return withPassword(text, parts.password);
}

QString withPassword(const QString& address, const QString& password)
{
    QString plain = withoutPassword(address);
    if (password.isEmpty())
        return plain;
    return plain + (plain.contains(QLatin1Char('?')) ? QLatin1Char('&') : QLatin1Char('?')) +
           QLatin1String("password=") + QString::fromLatin1(QUrl::toPercentEncoding(password));
}

/// By the text: an address may name several hosts, for which the toolkit's class of URLs has no words.
QString withoutPassword(const QString& address)
{
    static const QRegularExpression inUser(QStringLiteral("^([a-z]+://[^:@/?]*):[^@/]*@"));
    static const QRegularExpression inQuery(QStringLiteral("([?&])password=[^&]*&?"));
    QString text = address;
    text.replace(inUser, QStringLiteral("\\1@"));
    text.replace(inQuery, QStringLiteral("\\1"));
    while (text.endsWith(QLatin1Char('&')) || text.endsWith(QLatin1Char('?')))
        text.chop(1);
    return text;
}

QString shown(const QString& address)
{
    const QString text = withoutPassword(address);
    const QString place = text.section(QLatin1String("//"), 1).section(QLatin1Char('?'), 0, 0);
    return place.isEmpty() ? text : place;
}

} // namespace SiteAddress

} // namespace ko
