#include "devices/DeviceChecks.h"

#include "HandOver.h"
#include "devices/DeviceCheck.h"

#include <QHash>

#include <deque>
#include <utility>

#include <sys/resource.h>

namespace ko {

namespace {

const int Niceness = 10;

/// The user's windows come first: this thread, and those of the toolkit that it starts for HTTP, stand back.
void standBack()
{
    setpriority(PRIO_PROCESS, 0, Niceness); // of the calling thread, on Linux
}

QString placeOf(const DeviceTarget& target)
{
    return target.address.trimmed().toLower() + QLatin1Char(' ') + QString::number(target.port);
}

/// Whether one check will do for both.
bool isAlike(const DeviceTarget& a, const DeviceTarget& b)
{
    return a.useSSL == b.useSSL && a.user == b.user && a.password == b.password &&
           a.allowsBasic == b.allowsBasic && a.wantsAllFacts == b.wantsAllFacts &&
           a.wantsPicture == b.wantsPicture && (!a.wantsPicture || a.channel == b.channel) &&
           a.proxy == b.proxy && a.known.serial == b.known.serial && a.known.endpoint == b.known.endpoint &&
           a.known.realm == b.known.realm && a.known.certificate == b.known.certificate;
}

} // namespace

/// In the thread. Places wait, are under way or done; of one place there is one check at a time.
class DeviceChecks::Worker : public QObject
{
public:
    Worker(DeviceChecks& checks, int run, const QVector<DeviceTarget>& targets);

    void begin();

private:
    struct Place
    {
        std::deque<DeviceTarget> targets;
    };

    void step();
    void startNext(const QString& place);
    void finish(const QString& place, DeviceCheck* check, const QVector<DeviceTarget>& alike);
    void report(const DeviceTarget& target, DeviceReport report);
    void post();

    DeviceChecks& m_checks;
    const int m_run;
    SharedManagers m_managers;
    QHash<QString, Place> m_places;
    std::deque<QString> m_waiting;
    int m_running = 0;
    QVector<DeviceReport> m_reports;
    QTimer m_stepTimer;
    QTimer m_reportTimer;
};

DeviceChecks::Worker::Worker(DeviceChecks& checks, int run, const QVector<DeviceTarget>& targets)
    : m_checks(checks)
    , m_run(run)
    , m_stepTimer(this)
    , m_reportTimer(this)
{
    for (const DeviceTarget& target : targets) {
        const QString key = placeOf(target);
        Place& place = m_places[key];
        if (place.targets.empty())
            m_waiting.push_back(key);
        place.targets.push_back(target);
    }
    connect(&m_stepTimer, &QTimer::timeout, this, [this] { step(); });
    connect(&m_reportTimer, &QTimer::timeout, this, [this] { post(); });
}

void DeviceChecks::Worker::begin()
{
    standBack();
    m_stepTimer.start(StepTime);
    m_reportTimer.start(ReportInterval);
}

void DeviceChecks::Worker::step()
{
    for (int i = 0; i < StartsInStep && m_running < MostAtOnce && !m_waiting.empty(); ++i) {
        const QString place = m_waiting.front();
        m_waiting.pop_front();
        startNext(place);
    }
    if (m_waiting.empty() && m_running == 0) {
        m_stepTimer.stop();
        m_reportTimer.stop();
        post();
    }
}

void DeviceChecks::Worker::startNext(const QString& place)
{
    std::deque<DeviceTarget>& targets = m_places[place].targets;
    const DeviceTarget first = targets.front();
    QVector<DeviceTarget> alike;
    for (auto target = targets.begin(); target != targets.end();) {
        if (isAlike(first, *target)) {
            alike.append(*target);
            target = targets.erase(target);
        } else {
            ++target;
        }
    }
    ++m_running;
    auto* check = new DeviceCheck(first, m_managers, this);
    connect(check, &DeviceCheck::finished, this,
            [this, place, check, alike] { finish(place, check, alike); });
    check->start();
}

void DeviceChecks::Worker::finish(const QString& place, DeviceCheck* check,
                                  const QVector<DeviceTarget>& alike)
{
    --m_running;
    const DeviceReport result = check->report();
    check->deleteLater();
    for (const DeviceTarget& target : alike)
        report(target, result);
    const bool isRefused =
        result.state == DeviceReport::WrongPassword || result.state == DeviceReport::LockedOut;
    const std::deque<DeviceTarget>& others = m_places[place].targets;
    if (!isRefused && !others.empty()) {
        m_waiting.push_back(place);
        return;
    }
    DeviceReport none;
    none.reason = {"DeviceChecks", QT_TRANSLATE_NOOP("DeviceChecks", "another password was refused there")};
    for (const DeviceTarget& target : others)
        report(target, none);
    m_places.remove(place);
}

void DeviceChecks::Worker::report(const DeviceTarget& target, DeviceReport report)
{
    report.id = target.id;
    m_reports.append(report);
}

void DeviceChecks::Worker::post()
{
    if (m_reports.isEmpty())
        return;
    DeviceChecks* checks = &m_checks;
    const QVector<DeviceReport> reports = std::exchange(m_reports, {});
    handOver(checks, [checks, run = m_run, reports] { checks->take(run, reports); });
}

DeviceChecks::DeviceChecks(QObject* parent)
    : QObject(parent)
{
    m_thread.setObjectName(QStringLiteral("device checks"));
}

DeviceChecks::~DeviceChecks()
{
    retire();
    m_thread.quit();
    m_thread.wait();
}

void DeviceChecks::start(const QVector<DeviceTarget>& targets)
{
    if (isRunning())
        return;
    m_done = 0;
    m_total = int(targets.size());
    if (m_total == 0) {
        QMetaObject::invokeMethod(this, &DeviceChecks::finished, Qt::QueuedConnection);
        return;
    }
    m_thread.start();
    m_worker = new Worker(*this, ++m_run, targets);
    m_worker->moveToThread(&m_thread);
    QMetaObject::invokeMethod(m_worker, &Worker::begin, Qt::QueuedConnection);
}

void DeviceChecks::cancel()
{
    retire();
}

/// Nobody waits for the connections that it still has.
void DeviceChecks::retire()
{
    if (m_worker)
        std::exchange(m_worker, nullptr)->deleteLater();
}

void DeviceChecks::take(int run, const QVector<DeviceReport>& reports)
{
    if (!m_worker || run != m_run)
        return;
    m_done += int(reports.size());
    const bool isLast = m_done == m_total;
    emit checked(reports);
    if (!m_worker || run != m_run || !isLast) // a receiver has cancelled it
        return;
    retire();
    emit finished();
}

} // namespace ko
