#include "Site.h"

#include "Hostile.h"
#include "Say.h"

#include <QCoreApplication>
#include <QNetworkInterface>

namespace kosim {

namespace {

const int StormPause = 5000; // ms between two storms
const int SayDelay = 300;    // ms, so that many changes are one line

QByteArray macOf(int number)
{
    return "02:6b:73:00:" + QByteArray::number(number >> 8 & 0xff, 16).rightJustified(2, '0') + ':' +
           QByteArray::number(number & 0xff, 16).rightJustified(2, '0');
}

QByteArray hostOf(int number)
{
    return "kosim" + QByteArray::number(QCoreApplication::applicationPid()) + '-' +
           QByteArray::number(number);
}

} // namespace

Site::Site(const Options& options)
    : m_options(options)
{
    m_sayTimer.setSingleShot(true);
    connect(&m_sayTimer, &QTimer::timeout, this, &Site::sayAnnounced);
    connect(&m_moveTimer, &QTimer::timeout, this, &Site::move);
    connect(&m_stormTimer, &QTimer::timeout, this, &Site::storm);
}

Camera* Site::newCamera(int number) const
{
    Identity identity;
    identity.name = m_options.hostile ? Hostile::name(number) : QStringLiteral("Camera %1").arg(number);
    identity.macAddress = macOf(m_options.sharedMac ? 0 : number);
    identity.model = m_options.model.toUtf8();
    identity.serial = "KS" + QByteArray::number(number).rightJustified(6, '0');
    identity.endpoint =
        "urn:uuid:6b6f7369-6d00-4000-8000-" + QByteArray::number(number, 16).rightJustified(12, '0');
    identity.rtspPort = m_options.rtspPort;
    identity.httpPort = m_options.httpPort;
    identity.hasTls = !m_options.tls.certificate.isNull();
    return new Camera(identity, behaviourOf(number), m_options.account, m_options.tls);
}

Behaviour Site::behaviourOf(int number) const
{
    if (m_options.hostileEvery > 0 && number % m_options.hostileEvery == 0)
        return hostileBehaviour(number / m_options.hostileEvery);
    return m_options.behaviours.at((number - 1) % int(m_options.behaviours.size()));
}

QString Site::start()
{
    for (int number = 1; number <= m_options.cameras; ++number)
        m_cameras.emplace_back(newCamera(number));
    QString error = m_options.oneServer ? serveAll() : QString();
    if (error.isEmpty())
        error = place();
    if (error.isEmpty() && m_options.announce) {
        m_discovery =
            std::make_unique<Discovery>(interface(), quint16(m_options.discoveryPort), m_options.hostile);
        error = m_discovery->start();
    }
    if (!error.isEmpty())
        return error;
    if (m_options.moving)
        m_moveTimer.start(m_options.moveInterval * 1000);
    if (m_options.announce)
        announceCameras();
    if (m_options.announce && m_options.storm > 0) {
        m_stormTimer.start(StormPause);
        storm();
    }
    say(QStringLiteral("ready: %1 cameras").arg(m_options.cameras));
    return QString();
}

/// A listening socket for each of ten thousand takes more descriptors than a process has.
QString Site::serveAll()
{
    const int mostConnections = 5000;
    m_server = std::make_unique<HttpServer>(
        [this](const QHostAddress& at, const HttpRequest& request) {
            Camera* camera = m_byAddress.value(at);
            HttpReply nobody;
            nobody.status = 404;
            return camera ? camera->answer(request) : nobody;
        },
        mostConnections, m_options.tls);
    return m_server->listen(QHostAddress::AnyIPv4, m_options.httpPort);
}

/// Cameras that move have every other address in turn.
QString Site::place()
{
    const int offset = m_moves % 2 * m_options.cameras;
    m_byAddress.clear();
    for (size_t i = 0; i < m_cameras.size(); ++i) {
        Camera& camera = *m_cameras[i];
        const QHostAddress address = m_options.addresses.at(int(i) + offset);
        QString error;
        if (m_server) {
            camera.setAddress(address);
            m_byAddress.insert(address, &camera);
        } else {
            error = camera.moveTo(address);
        }
        if (!error.isEmpty())
            return error;
        const Identity& identity = camera.identity();
        say(QStringLiteral("%1 at %2, RTSP port %3, HTTP port %4, MAC %5")
                .arg(identity.name, address.toString(), QString::number(identity.rtspPort),
                     QString::number(identity.httpPort), QString::fromLatin1(identity.macAddress)));
    }
    return QString();
}

Announcement Site::announcementOf(int camera) const
{
    const Identity& device = m_cameras[size_t(camera)]->identity();
    Announcement announcement;
    announcement.name = device.name.toUtf8();
    announcement.hostName = hostOf(camera + 1);
    announcement.address = device.address;
    announcement.services = {{"_rtsp._tcp", m_options.rtspPort}, {"_http._tcp", m_options.httpPort}};
    announcement.txt = m_options.hostile ? Hostile::txt() : QVector<QByteArray>();
    announcement.txt += {"model=" + device.model, "mac=" + device.macAddress, "version=1.0"};
    return announcement;
}

void Site::announceCameras()
{
    QVector<Announcement> all;
    for (int i = 0; i < int(m_cameras.size()); ++i)
        all.append(announcementOf(i));
    announce(m_announcers, all);
    QVector<Identity> identities;
    for (const auto& camera : m_cameras)
        identities.append(camera->identity());
    m_discovery->announce(identities);
}

void Site::announce(Announcers& announcers, const QVector<Announcement>& announcements)
{
    const int share = Announcer::MostAnnouncements;
    for (int from = 0; from < int(announcements.size()); from += share) {
        const auto index = size_t(from / share);
        if (index == announcers.size()) {
            announcers.push_back(std::make_unique<Announcer>(interface()));
            connect(announcers.back().get(), &Announcer::changed, &m_sayTimer, [this] {
                if (!m_sayTimer.isActive())
                    m_sayTimer.start(SayDelay);
            });
        }
        announcers[index]->announce(announcements.mid(from, share));
    }
}

/// The one that has the addresses. Loopback addresses must not be told to others.
int Site::interface() const
{
    const QHostAddress first = m_options.addresses.constFirst();
    const QList<QNetworkInterface> all = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& candidate : all) {
        const QList<QNetworkAddressEntry> entries = candidate.addressEntries();
        for (const QNetworkAddressEntry& entry : entries) {
            if (entry.ip() == first || (first.isLoopback() && entry.ip().isLoopback()))
                return candidate.index();
        }
    }
    return AVAHI_IF_UNSPEC;
}

void Site::move()
{
    ++m_moves;
    const QString error = place();
    if (!error.isEmpty()) {
        say(error, stderr);
        QCoreApplication::exit(1);
        return;
    }
    if (m_options.announce)
        announceCameras();
}

/// Other names each time: those who list devices see more and more.
void Site::storm()
{
    ++m_storms;
    QVector<Announcement> all;
    for (int i = 0; i < m_options.storm; ++i) {
        Announcement announcement;
        announcement.name = QStringLiteral("Storm %1.%2").arg(m_storms).arg(i).toLatin1();
        announcement.hostName = hostOf(1);
        announcement.services = {{"_rtsp._tcp", 1024 + (m_storms * m_options.storm + i) % 60000}};
        all.append(announcement);
    }
    say(QStringLiteral("storm %1: %2 announcements").arg(m_storms).arg(m_options.storm));
    announce(m_stormAnnouncers, all);
}

void Site::sayAnnounced()
{
    int announced = 0;
    int wanted = 0;
    for (const auto* announcers : {&m_announcers, &m_stormAnnouncers}) {
        for (const auto& announcer : *announcers) {
            announced += announcer->announced();
            wanted += announcer->wanted();
        }
    }
    const QString text = QStringLiteral("announced %1 of %2").arg(announced).arg(wanted);
    if (text != m_said)
        say(text);
    m_said = text;
}

} // namespace kosim
