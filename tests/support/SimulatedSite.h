#ifndef TESTS_SUPPORT_SIMULATEDSITE_H
#define TESTS_SUPPORT_SIMULATEDSITE_H

#include "devices/DeviceReport.h"

#include <QHostAddress>
#include <QProcess>
#include <QTcpServer>
#include <QTest>

namespace testsupport {

/// A site with one server for all of its cameras, from 127.0.1.1 on.
class SimulatedSite
{
public:
    explicit SimulatedSite(const QStringList& options)
    {
        QTcpServer free;
        free.listen();
        port = free.serverPort();
        free.close();
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        // It ends with the test, also when that crashes: it holds the pipe that tells of the test's end.
        m_process.start("setpriv", QStringList{"--pdeathsig", "TERM", KO_KOSIM, "--one-server",
                                               "--no-announce", "--http-port", QString::number(port)} +
                                       options);
        QByteArray said;
        isUp = QTest::qWaitFor(
            [&] { return (said += m_process.readAllStandardOutput()).contains("ready: "); }, 20000);
        QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &m_process,
                         [this] { m_process.readAllStandardOutput(); });
    }
    ~SimulatedSite()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

    ko::DeviceTarget target(int camera) const
    {
        ko::DeviceTarget target;
        target.id = QString::number(camera);
        target.address =
            QHostAddress(QHostAddress("127.0.1.1").toIPv4Address() + quint32(camera) - 1).toString();
        target.port = port;
        target.user = QStringLiteral("admin");
        target.password = QStringLiteral("kosim-pass");
        return target;
    }

    bool isUp = false;
    int port = 0;

private:
    QProcess m_process;
};

} // namespace testsupport

#endif
