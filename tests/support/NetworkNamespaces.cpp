#include "support/NetworkNamespaces.h"

#include "support/ExecArguments.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace testsupport {

namespace {

const char HereInterface[] = "here0";
const char InsideVariable[] = "KO_TEST_INSIDE_NAMESPACES";

/// The daemons' own configuration would ask for users and folders that a bare system does not have.
const char PrepareRun[] = R"(set -e
mount -t tmpfs -o mode=755 tmpfs /run
mkdir -p /run/dbus /run/avahi-daemon
ip link set lo multicast on up
cat >/run/bus.conf <<'END'
<busconfig>
  <type>system</type>
  <listen>unix:path=/run/dbus/system_bus_socket</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow user="*"/>
    <allow own="*"/>
    <allow send_destination="*"/>
    <allow receive_sender="*"/>
  </policy>
  <limit name="max_match_rules_per_connection">50000</limit>
</busconfig>
END
)";

QStringList unshareArguments()
{
    QStringList arguments = {QStringLiteral("--net"),        QStringLiteral("--mount"),
                             QStringLiteral("--pid"),        QStringLiteral("--fork"),
                             QStringLiteral("--kill-child"), QStringLiteral("--mount-proc")};
    if (geteuid() != 0)
        arguments.prepend(QStringLiteral("--map-root-user"));
    return arguments;
}

QString missingProgram()
{
    for (const char* program : {"unshare", "nsenter", "ip", "dbus-daemon", "avahi-daemon", "avahi-publish"}) {
        if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty() &&
            QStandardPaths::findExecutable(QLatin1String(program),
                                           {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")})
                .isEmpty())
            return QStringLiteral("%1 is not installed").arg(QLatin1String(program));
    }
    return QString();
}

/// A program's own words when it failed, in one line.
QString failure(QProcess& process, const QString& program)
{
    const bool isStarted = process.waitForStarted();
    const bool isFinished = process.state() == QProcess::NotRunning || process.waitForFinished(20000);
    if (isStarted && isFinished && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return QString();
    process.kill();
    process.waitForFinished();
    const QString words = QString::fromLocal8Bit(process.readAllStandardError()).simplified();
    return program + QStringLiteral(": ") + (words.isEmpty() ? process.errorString() : words);
}

void execute(const QStringList& command)
{
    const ExecArguments arguments(command);
    execvp(arguments.program(), arguments.data());
    std::perror(arguments.program());
    std::exit(1);
}

QString& reason()
{
    static QString words;
    return words;
}

} // namespace

void NetworkNamespaces::enter(char** argv)
{
    if (qEnvironmentVariableIsSet(InsideVariable))
        return;
    qputenv("PATH", qgetenv("PATH") + ":/usr/sbin:/sbin");
    reason() = missingProgram();
    if (!reason().isEmpty())
        return;
    const QStringList shell = {QStringLiteral("sh"), QStringLiteral("-c")};
    QProcess attempt;
    attempt.start(QStringLiteral("unshare"),
                  unshareArguments() + shell + QStringList{QLatin1String(PrepareRun)});
    reason() = failure(attempt, QStringLiteral("no namespaces"));
    if (!reason().isEmpty())
        return;
    qputenv(InsideVariable, "1");
    // The shell stays as the first process of the namespace: it takes what the test's children leave behind.
    const QString script = QLatin1String(PrepareRun) + QStringLiteral("set +e\n\"$0\" \"$@\"\nexit $?\n");
    QStringList command = QStringList{QStringLiteral("unshare")} + unshareArguments() + shell +
                          QStringList{script, QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))};
    for (char** argument = argv + 1; *argument; ++argument)
        command.append(QFile::decodeName(*argument));
    execute(command);
}

QString NetworkNamespaces::hereInterface()
{
    return QLatin1String(HereInterface);
}

QString NetworkNamespaces::missing()
{
    return reason();
}

NetworkNamespaces::~NetworkNamespaces()
{
    // Left to the end of the second network, the cable would stay for a while, and the next one has its name.
    if (m_isConnected &&
        !run(Here, QStringLiteral("ip"), {QStringLiteral("link"), QStringLiteral("delete"), hereInterface()}))
        qWarning("%s", qPrintable(m_error));
    while (!m_processes.empty()) { // the latest first: a daemon before its bus
        end(m_processes.back().get());
        m_processes.pop_back();
    }
}

QStringList NetworkNamespaces::inside(Side side, const QString& program, const QStringList& arguments) const
{
    const QStringList command = QStringList{program} + arguments;
    if (side == Here)
        return command;
    return QStringList{QStringLiteral("nsenter"), QStringLiteral("--target"), QString::number(m_site),
                       QStringLiteral("--net"),   QStringLiteral("--mount"),  QStringLiteral("--")} +
           command;
}

bool NetworkNamespaces::run(Side side, const QString& program, const QStringList& arguments)
{
    const QStringList command = inside(side, program, arguments);
    QProcess process;
    process.start(command.at(0), command.mid(1));
    m_error = failure(process, command.join(QLatin1Char(' ')).left(200));
    return m_error.isEmpty();
}

QProcess* NetworkNamespaces::launch(Side side, const QString& program, const QStringList& arguments)
{
    const QStringList command = inside(side, program, arguments);
    m_processes.push_back(std::make_unique<QProcess>());
    QProcess* process = m_processes.back().get();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(command.at(0), command.mid(1));
    if (!process->waitForStarted())
        m_error = program + QStringLiteral(": ") + process->errorString();
    return process;
}

void NetworkNamespaces::end(QProcess* process)
{
    if (process->state() == QProcess::NotRunning)
        return;
    process->terminate();
    if (!process->waitForFinished(5000))
        process->kill();
    process->waitForFinished();
}

bool NetworkNamespaces::connectSite(int prefix)
{
    const QString script =
        QLatin1String(PrepareRun) + QStringLiteral("touch /run/ready\nexec sleep infinity\n");
    QProcess* site = launch(Here, QStringLiteral("unshare"),
                            {QStringLiteral("--net"), QStringLiteral("--mount"), QStringLiteral("sh"),
                             QStringLiteral("-c"), script});
    m_site = site->processId();
    const QString ready = QStringLiteral("/proc/%1/root/run/ready").arg(m_site);
    if (!QTest::qWaitFor([&ready] { return QFile::exists(ready); }, 10000)) {
        m_error = QStringLiteral("the second network does not come up");
        return false;
    }
    const auto ip = [this](Side side, const QString& words) {
        return run(side, QStringLiteral("ip"), words.split(QLatin1Char(' ')));
    };
    m_isConnected = ip(Here, QStringLiteral("link add %1 type veth peer name %2 netns %3")
                                 .arg(hereInterface(), siteInterface())
                                 .arg(m_site));
    return m_isConnected &&
           ip(Here, QStringLiteral("addr add 10.99.0.1/%1 dev %2").arg(prefix).arg(hereInterface())) &&
           addSiteAddress(QStringLiteral("10.99.0.2"), prefix) &&
           ip(Here, QStringLiteral("link set %1 up").arg(hereInterface())) &&
           ip(Site, QStringLiteral("link set %1 up").arg(siteInterface())) && waitForCarrier();
}

bool NetworkNamespaces::waitForCarrier()
{
    // The kernel may report it late: while it takes another network down, and at most once a second.
    const auto isRunning = [] {
        ifreq request = {};
        std::copy_n(HereInterface, sizeof HereInterface, request.ifr_name);
        const int any = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
        const bool isKnown = ioctl(any, SIOCGIFFLAGS, &request) == 0;
        close(any);
        return isKnown && (request.ifr_flags & IFF_RUNNING) != 0;
    };
    if (QTest::qWaitFor(isRunning, 10000))
        return true;
    m_error = QStringLiteral("the cable has no carrier");
    return false;
}

bool NetworkNamespaces::addSiteAddress(const QString& address, int prefix)
{
    return run(Site, QStringLiteral("ip"),
               {QStringLiteral("addr"), QStringLiteral("add"),
                QStringLiteral("%1/%2").arg(address).arg(prefix), QStringLiteral("dev"), siteInterface()});
}

bool NetworkNamespaces::startDaemons()
{
    return startDaemons(Here) && startDaemons(Site);
}

bool NetworkNamespaces::startDaemons(Side side)
{
    const QString root = side == Here ? QString() : QStringLiteral("/proc/%1/root").arg(m_site);
    const QString interface = side == Here ? hereInterface() : siteInterface();
    QFile file(root + QStringLiteral("/run/avahi.conf"));
    if (!file.open(QIODevice::WriteOnly)) {
        m_error = file.errorString();
        return false;
    }
    file.write(QStringLiteral("[server]\nhost-name=%1\nallow-interfaces=%2\nuse-ipv4=yes\nuse-ipv6=yes\n"
                              "objects-per-client-max=20000\nentries-per-entry-group-max=200\n"
                              "ratelimit-interval-usec=0\n")
                   .arg(side == Here ? QStringLiteral("client") : QStringLiteral("site"), interface)
                   .toLatin1());
    file.close();
    launch(side, QStringLiteral("dbus-daemon"),
           {QStringLiteral("--config-file=/run/bus.conf"), QStringLiteral("--nofork"),
            QStringLiteral("--nopidfile")});
    const QString socket = root + QStringLiteral("/run/dbus/system_bus_socket");
    launch(side, QStringLiteral("sh"),
           {QStringLiteral("-c"),
            QStringLiteral("while [ ! -S /run/dbus/system_bus_socket ]; do sleep 0.02; done\n"
                           "exec avahi-daemon --no-drop-root --no-chroot -f /run/avahi.conf")});
    const QString pid = root + QStringLiteral("/run/avahi-daemon/pid");
    if (QTest::qWaitFor([&] { return QFile::exists(socket) && QFile::exists(pid); }, 15000))
        return true;
    m_error = QStringLiteral("the Avahi daemon does not come up");
    return false;
}

} // namespace testsupport
