#include "conformance/Trial.h"

#include "ko/Environments.h"
#include "ko/GlobalNetworkProxy.h"

namespace ko {
namespace conformance {

namespace {

const QLatin1String home("{11111111-2222-3333-4444-555555555555}");
const QLatin1String site("{66666666-7777-8888-9999-000000000000}");

void environments(Trial& trial)
{
    Environments& all = trial.db().environments();
    const Environments::List two = {{site, QLatin1String("Site")}, {home, QLatin1String("Home")}};
    all.setList(two);
    trial.expect(all.getList() == two, QLatin1String("the list is another than the one that was set"));
    all.remove(QLatin1String("no environment"));
    trial.expect(all.getList() == two, QLatin1String("removing an unknown one changes the list"));
    all.remove(site);
    trial.expect(all.getList() == two.mid(1), QLatin1String("one that was removed is still in the list"));
}

void activeEnvironment(Trial& trial)
{
    trial.db().environments().setList({{home, QLatin1String("Home")}, {site, QLatin1String("Site")}});
    for (const QString& id : {QString(site), QString(home)}) {
        trial.db().setActiveEnvironment(id);
        trial.expectEqual(trial.db().activeEnvironment(), id, "the active environment");
    }
}

void proxy(Trial& trial)
{
    trial.db().globalProxy().setProxyAddress(QLatin1String("proxy.example"), 3128);
    trial.expectEqual(trial.db().globalProxy().proxyAddress(), QString::fromLatin1("proxy.example"),
                      "the address of the proxy");
    trial.expectEqual(trial.db().globalProxy().proxyPort(), 3128, "the port of the proxy");
}

void scanners(Trial& trial)
{
    trial.db().stopScanners("no such scanner");
    trial.db().startScanners("no such scanner", ~0U, -1);
    trial.db().stopScanners("no such scanner");
    trial.expectEqual(trial.heard(), QStringList(), "what is announced");
}

} // namespace

QVector<TriedRule> settingsRules()
{
    return {
        {{"environments.list",
          "the environments are those that were set, in their order, without removed ones"},
         environments},
        {{"environments.active", "the active environment is the one that was set"}, activeEnvironment},
        {{"settings.proxy", "the global proxy keeps what is set"}, proxy},
        {{"scanners.unknown", "starting and stopping a scanner that the host does not have does nothing"},
         scanners},
    };
}

} // namespace conformance
} // namespace ko
