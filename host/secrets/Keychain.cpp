#include "secrets/Keychain.h"

#include "secrets/KeychainWait.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QEventLoop>
#include <QMap>
#include <QTimer>

#if QT_VERSION >= 0x060000
#include <qt6keychain/keychain.h>
#else
#include <qt5keychain/keychain.h>
#endif

#include <algorithm>
#include <iterator>
#include <memory>

namespace ko {

namespace {

constexpr int NoticeAfter = 1000; // ms
constexpr int BusTimeout = 5000;  // ms
constexpr char Entry[] = "installation key";
constexpr char SecretService[] = "org.freedesktop.secrets";
const char* const services[] = {SecretService, "org.kde.kwalletd6", "org.kde.kwalletd5", "org.kde.kwalletd"};

struct Outcome
{
    bool finished = false;
    QKeychain::Error error = QKeychain::OtherError;
    QString text;
};

/// Until \a loop is left; at most \a patience milliseconds.
void await(QEventLoop& loop, int patience)
{
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(patience);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void await(QEventLoop& loop, const Outcome& outcome, int patience, KeychainWait* wait)
{
    await(loop, std::min(NoticeAfter, patience));
    if (outcome.finished)
        return;
    if (wait && wait->begin([&loop] { loop.quit(); }))
        loop.exec();
    else if (patience > NoticeAfter)
        await(loop, patience - NoticeAfter);
    if (wait)
        wait->end();
}

/// A job that nobody waits for any more goes on by itself: the keychain may still answer into it.
Outcome run(QKeychain::Job* job, int patience, KeychainWait* wait)
{
    const auto outcome = std::make_shared<Outcome>();
    QEventLoop loop;
    job->setAutoDelete(true);
    job->setInsecureFallback(false);
    job->setKey(QLatin1String(Entry));
    QObject::connect(job, &QKeychain::Job::finished, &loop, [outcome, &loop](QKeychain::Job* done) {
        outcome->finished = true;
        outcome->error = done->error();
        if (const auto* reader = qobject_cast<QKeychain::ReadPasswordJob*>(done))
            outcome->text = reader->textData();
        loop.quit();
    });
    job->start();
    if (!outcome->finished)
        await(loop, *outcome, patience, wait);
    return *outcome;
}

/// A look at the session's bus past the library, which does not tell a locked entry from a missing one, nor
/// a keychain that refuses from none. To be used after the library got an answer from the bus.
class Bus
{
public:
    Bus()
        : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QLatin1String(Name)))
    {
    }
    ~Bus() { QDBusConnection::disconnectFromBus(QLatin1String(Name)); }
    Q_DISABLE_COPY(Bus)

    /// Whether a keychain runs or can be started.
    bool hasKeychain() const
    {
        const QDBusConnectionInterface* bus = m_bus.interface();
        if (!m_bus.isConnected() || !bus)
            return false;
        const QDBusReply<QStringList> startable =
            m_bus.call(QDBusMessage::createMethodCall(bus->service(), bus->path(), bus->interface(),
                                                      QLatin1String("ListActivatableNames")),
                       QDBus::Block, BusTimeout);
        return std::any_of(std::begin(services), std::end(services), [&](const char* service) {
            return bus->isServiceRegistered(QLatin1String(service)) ||
                   startable.value().contains(QLatin1String(service));
        });
    }

    /// An entry can be found by its name while it is locked.
    bool hasLocked(const QString& service) const
    {
        qDBusRegisterMetaType<QMap<QString, QString>>();
        QDBusMessage search = QDBusMessage::createMethodCall(
            QLatin1String(SecretService), QLatin1String("/org/freedesktop/secrets"),
            QLatin1String("org.freedesktop.Secret.Service"), QLatin1String("SearchItems"));
        search << QVariant::fromValue(QMap<QString, QString>{{QLatin1String("server"), service},
                                                             {QLatin1String("user"), QLatin1String(Entry)}});
        const QDBusMessage found = m_bus.call(search, QDBus::Block, BusTimeout);
        return found.type() == QDBusMessage::ReplyMessage &&
               !qdbus_cast<QList<QDBusObjectPath>>(found.arguments().value(1)).isEmpty();
    }

private:
    static constexpr char Name[] = "ko-keychain";

    QDBusConnection m_bus;
};

} // namespace

KeychainWait::~KeychainWait() = default;

Keychain::Keychain(const QString& service, int patience, KeychainWait* wait)
    : m_service(service)
    , m_patience(patience)
    , m_wait(wait)
{
}

Keychain::Answer Keychain::read(QString* text) const
{
    const Outcome outcome = run(new QKeychain::ReadPasswordJob(m_service), m_patience, m_wait);
    if (!outcome.finished)
        return Closed;
    *text = outcome.text;
    switch (outcome.error) {
    case QKeychain::NoError:
        return Found;
    case QKeychain::EntryNotFound: // also what an entry that the user did not unlock is called
        return Bus().hasLocked(m_service) ? Closed : NoEntry;
    case QKeychain::NoBackendAvailable:
        return NotThere;
    case QKeychain::OtherError:
        return Bus().hasKeychain() ? Closed : NotThere;
    default:
        return Closed;
    }
}

void Keychain::write(const QString& text) const
{
    auto* job = new QKeychain::WritePasswordJob(m_service);
    job->setTextData(text);
    run(job, m_patience, m_wait);
}

} // namespace ko
