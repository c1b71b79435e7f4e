#include "Site.h"
#include "Stops.h"
#include "Stopwatch.h"
#include "Workload.h"

#include "dialogs/NodeOverviewDialog.h"
#include "discovery/DeviceIntake.h"
#include "discovery/Scanners.h"

#include <QTreeView>

namespace bench {

using namespace ko;

namespace {

/// Devices that are announced in one burst while the overview is open and sorted by name: how long the event
/// loop stands still between two turns, until all of them are nodes on the disk.
class Burst : public Contest
{
public:
    enum class What { Percentile99, Longest };

    Burst(int size, What what)
        : m_what(what)
    {
        for (int number = 0; number < size; ++number) {
            const NodeSummary camera = summaryOf(number, size);
            DiscoveredDevice device;
            device.name = camera.name;
            device.address = camera.location;
            device.port = 80;
            device.service = QStringLiteral("_http._tcp");
            m_devices.append(device);
        }
    }

    double ours() override
    {
        const QTemporaryDir folder;
        const auto db = bench::open(folder.filePath(QStringLiteral("n.kodb")));
        NodeOverviewDialog overview;
        overview.findChild<QTreeView*>()->sortByColumn(0, Qt::AscendingOrder);
        paint(overview);
        Scanners::of(*db).intake().beginScan();
        Stops watch;
        Scanners::of(*db).intake().take(m_devices);
        while (!Scanners::of(*db).intake().isIdle() || db->hasUnstoredChanges())
            QCoreApplication::processEvents();
        const int count = int(db->summaries().size());
        if (count != m_devices.size())
            qFatal("%d of %d devices became nodes", count, int(m_devices.size()));
        const QVector<double> stops = watch.sorted();
        return m_what == What::Longest ? stops.constLast() : stops.at(int(stops.size()) * 99 / 100);
    }

    double baseline() override { return m_what == What::Longest ? 50 : 16; }

private:
    const What m_what;
    QVector<DiscoveredDevice> m_devices;
};

/// The first device that is seen after the start, until its node is on the disk.
class FirstSighting : public Contest
{
public:
    explicit FirstSighting(int size)
        : m_size(size)
    {
    }

    double ours() override
    {
        const SiteCopy copy(m_size);
        const auto db = bench::open(copy.file());
        DiscoveredDevice device;
        device.name = QStringLiteral("new");
        device.address = QStringLiteral("192.168.77.7");
        device.macAddress = QStringLiteral("00:1b:2c:3d:4e:5f");
        device.port = 80;
        device.service = QStringLiteral("_http._tcp");
        bool isNode = false;
        QObject::connect(db.get(), &HostNodeDB::nodeInserted, [&isNode] { isNode = true; });
        return milliseconds([&] {
            Scanners::of(*db).intake().beginScan();
            Scanners::of(*db).intake().take({device});
            while (!isNode || db->hasUnstoredChanges())
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        });
    }

    double baseline() override { return 700; }

private:
    const int m_size;
};

} // namespace

QVector<Workload> scanWorkloads()
{
    return {
        {QStringLiteral("devices announced in one burst: stops of the event loop, 99th percentile"),
         QStringLiteral("a frame of 16 ms"),
         1.0,
         {10000},
         [](int size) { return std::make_unique<Burst>(size, Burst::What::Percentile99); },
         false,
         2.5,
         QStringLiteral("A time of its own, not a ratio: it grows on a slower machine.")},
        {QStringLiteral("devices announced in one burst: longest stop of the event loop"),
         QStringLiteral("50 ms"),
         0.45,
         {10000},
         [](int size) { return std::make_unique<Burst>(size, Burst::What::Longest); },
         false},
        {QStringLiteral("first device seen since the start, until its node is stored"),
         QStringLiteral("700 ms"), 1.0, allSizes,
         [](int size) { return std::make_unique<FirstSighting>(size); }, false},
    };
}

} // namespace bench
