#include "Options.h"

#include <QCommandLineParser>
#include <QFile>
#include <QNetworkInterface>

namespace kosim {

namespace {

const int MostCameras = 20000;
const int MostStorm = 20000;

/// A number in a range; what is wrong is appended to \a error.
int number(const QCommandLineParser& parser, const QString& name, int least, int most, QString& error)
{
    bool isNumber = false;
    const int value = parser.value(name).toInt(&isNumber);
    if ((!isNumber || value < least || value > most) && error.isEmpty())
        error = QStringLiteral("--%1 takes a number from %2 to %3").arg(name).arg(least).arg(most);
    return value;
}

void addOptions(QCommandLineParser& parser, const Options& defaults)
{
    parser.setApplicationDescription(QStringLiteral(
        "Simulates a site: virtual cameras that answer on RTSP and HTTP ports, asking for a password, "
        "announce themselves\nthrough the Avahi daemon and by WS-Discovery, and speak ONVIF. Runs until it "
        "is "
        "interrupted.\n\nExit code: 0 when "
        "it was "
        "ended by a signal, 1 when an address or port cannot be used, 2 for a wrong command line."));
    parser.addOptions({
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this text.")},
        {QStringLiteral("cameras"), QStringLiteral("How many (4)."), QStringLiteral("number"),
         QString::number(defaults.cameras)},
        {QStringLiteral("address-base"),
         QStringLiteral("Address of the first camera; the others have those that follow (127.0.1.1)."),
         QStringLiteral("address")},
        {QStringLiteral("interface"), QStringLiteral("Takes the IPv4 addresses of this interface instead."),
         QStringLiteral("name")},
        {QStringLiteral("port"), QStringLiteral("RTSP port of each camera (8554)."), QStringLiteral("port"),
         QString::number(defaults.rtspPort)},
        {QStringLiteral("http-port"), QStringLiteral("HTTP port of each camera (8080)."),
         QStringLiteral("port"), QString::number(defaults.httpPort)},
        {QStringLiteral("model"), QStringLiteral("Model that is announced (KS-1)."), QStringLiteral("text"),
         defaults.model},
        {QStringLiteral("user"), QStringLiteral("Who may ask the cameras (admin)."), QStringLiteral("name"),
         defaults.account.user},
        {QStringLiteral("password"), QStringLiteral("With this password (kosim-pass)."),
         QStringLiteral("text"), defaults.account.password},
        {QStringLiteral("onvif"),
         QStringLiteral(
             "How they answer over ONVIF, one after the other and from the beginning again (digest): ") +
             behaviourNames().join(QStringLiteral(", ")) + QLatin1Char('.'),
         QStringLiteral("names"), QStringLiteral("digest")},
        {QStringLiteral("hostile-every"),
         QStringLiteral("Each so many answers over ONVIF as an attacker does."), QStringLiteral("number"),
         QString::number(defaults.hostileEvery)},
        {QStringLiteral("one-server"),
         QStringLiteral("One HTTP server for all cameras, at all addresses of this machine, and no RTSP: for "
                        "thousands of loopback addresses.")},
        {QStringLiteral("tls"),
         QStringLiteral("The HTTP ports speak TLS, with the certificate and the key in this PEM file."),
         QStringLiteral("file")},
        {QStringLiteral("discovery-port"), QStringLiteral("UDP port of WS-Discovery (3702)."),
         QStringLiteral("port"), QString::number(defaults.discoveryPort)},
        {QStringLiteral("no-announce"), QStringLiteral("Does not announce the cameras.")},
        {QStringLiteral("hostile"),
         QStringLiteral(
             "Names with markup, control and bidirectional characters; TXT records that are overlong, "
             "malformed and tell a password; WS-Discovery with places of others and spoilt messages.")},
        {QStringLiteral("shared-mac"), QStringLiteral("All cameras announce one MAC address.")},
        {QStringLiteral("moving"),
         QStringLiteral("The cameras change between two addresses each; takes twice as many addresses.")},
        {QStringLiteral("move-interval"), QStringLiteral("Seconds between two changes (10)."),
         QStringLiteral("seconds"), QString::number(defaults.moveInterval)},
        {QStringLiteral("storm"),
         QStringLiteral("Announces so many devices more, takes them back and begins again."),
         QStringLiteral("number"), QString::number(defaults.storm)},
    });
}

} // namespace

QString Options::read(const QStringList& arguments)
{
    QCommandLineParser parser;
    addOptions(parser, *this);
    const bool isParsed = parser.parse(arguments);
    help = isParsed && parser.isSet(QStringLiteral("help"));
    helpText = parser.helpText();
    if (!isParsed || help)
        return parser.errorText();
    if (!parser.positionalArguments().isEmpty())
        return QStringLiteral("'%1' is no option").arg(parser.positionalArguments().constFirst());

    QString error;
    cameras = number(parser, QStringLiteral("cameras"), 1, MostCameras, error);
    rtspPort = number(parser, QStringLiteral("port"), 1, 65535, error);
    httpPort = number(parser, QStringLiteral("http-port"), 1, 65535, error);
    moveInterval = number(parser, QStringLiteral("move-interval"), 1, 3600, error);
    storm = number(parser, QStringLiteral("storm"), 0, MostStorm, error);
    discoveryPort = number(parser, QStringLiteral("discovery-port"), 1, 65535, error);
    hostileEvery = number(parser, QStringLiteral("hostile-every"), 0, MostCameras, error);
    account = {parser.value(QStringLiteral("user")), parser.value(QStringLiteral("password"))};
    oneServer = parser.isSet(QStringLiteral("one-server"));
    if (error.isEmpty())
        error = readBehaviours(parser.value(QStringLiteral("onvif")));
    if (error.isEmpty() && parser.isSet(QStringLiteral("tls")))
        error = readTls(parser.value(QStringLiteral("tls")));
    model = parser.value(QStringLiteral("model"));
    announce = !parser.isSet(QStringLiteral("no-announce"));
    hostile = parser.isSet(QStringLiteral("hostile"));
    sharedMac = parser.isSet(QStringLiteral("shared-mac"));
    moving = parser.isSet(QStringLiteral("moving"));
    if (rtspPort == httpPort && error.isEmpty())
        error = QStringLiteral("--port and --http-port are the same");
    return error.isEmpty() ? readAddresses(parser.value(QStringLiteral("address-base")),
                                           parser.value(QStringLiteral("interface")))
                           : error;
}

QString Options::readBehaviours(const QString& names)
{
    behaviours.clear();
    const QStringList words = names.split(QLatin1Char(','));
    for (const QString& word : words) {
        Behaviour behaviour = Behaviour::Digest;
        if (!behaviourOf(word.trimmed(), behaviour))
            return QStringLiteral("--onvif knows no '%1'").arg(word);
        behaviours.append(behaviour);
    }
    return QString();
}

QString Options::readTls(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("cannot read %1: %2").arg(fileName, file.errorString());
    const QByteArray text = file.readAll();
    tls.certificate = QSslCertificate(text);
    for (const auto algorithm : {QSsl::Ec, QSsl::Rsa}) {
        if (tls.key.isNull())
            tls.key = QSslKey(text, algorithm);
    }
    return tls.certificate.isNull() || tls.key.isNull()
               ? QStringLiteral("%1 holds no certificate with its key").arg(fileName)
               : QString();
}

QString Options::readAddresses(const QString& base, const QString& interface)
{
    const int needed = moving ? 2 * cameras : cameras;
    if (!base.isEmpty() && !interface.isEmpty())
        return QStringLiteral("--address-base and --interface exclude each other");
    if (interface.isEmpty()) {
        bool isIPv4 = false;
        const quint32 first =
            QHostAddress(base.isEmpty() ? QStringLiteral("127.0.1.1") : base).toIPv4Address(&isIPv4);
        if (!isIPv4 || first > 0xffffffffu - quint32(needed))
            return QStringLiteral("'%1' is no IPv4 address with %2 behind it").arg(base).arg(needed - 1);
        for (int i = 0; i < needed; ++i)
            addresses.append(QHostAddress(first + quint32(i)));
        return QString();
    }
    const QList<QNetworkAddressEntry> entries =
        QNetworkInterface::interfaceFromName(interface).addressEntries();
    for (const QNetworkAddressEntry& entry : entries) {
        if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol && addresses.size() < needed)
            addresses.append(entry.ip());
    }
    return addresses.size() == needed ? QString()
                                      : QStringLiteral("%1 has %2 IPv4 addresses, %3 are needed")
                                            .arg(interface)
                                            .arg(addresses.size())
                                            .arg(needed);
}

} // namespace kosim
