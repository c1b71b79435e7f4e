#ifndef TESTS_SUPPORT_NETWORKNAMESPACES_H
#define TESTS_SUPPORT_NETWORKNAMESPACES_H

#include <QProcess>
#include <QStringList>
#include <QTest>

#include <memory>
#include <vector>

namespace testsupport {

/// Two networks of their own, joined by a cable: "here", in which the test runs, and "site", in which
/// cameras are. Each has its own /run with, when asked for, a D-Bus system bus and an Avahi daemon, so that
/// nothing of the machine is seen or touched. All processes are in a process namespace that ends with the
/// test, also when it crashes or is killed; the networks go with the last process.
class NetworkNamespaces
{
public:
    enum Side { Here, Site };

    /// Runs this program again inside; to be called first in main(). Returns in the outer program only when
    /// that cannot be done.
    static void enter(char** argv);

    /// Why enter() could not; empty inside.
    static QString missing();

    NetworkNamespaces() = default;
    ~NetworkNamespaces();

    /// Lays the cable: 10.99.0.1 here and 10.99.0.2 at the site, with this prefix, and waits until it
    /// carries. False with an error().
    bool connectSite(int prefix = 24);

    /// Bus and daemon on both sides.
    bool startDaemons();

    /// Gives the site one more address on its end of the cable.
    bool addSiteAddress(const QString& address, int prefix = 24);

    /// Runs a program to its end; false when it fails, with its message as error().
    bool run(Side side, const QString& program, const QStringList& arguments);

    /// Starts a program that is ended with this object, or by end().
    QProcess* launch(Side side, const QString& program, const QStringList& arguments);
    static void end(QProcess* process);

    static QString hereInterface();
    static QString siteInterface() { return QStringLiteral("site0"); }
    QString error() const { return m_error; }

private:
    Q_DISABLE_COPY(NetworkNamespaces)

    QStringList inside(Side side, const QString& program, const QStringList& arguments) const;
    bool startDaemons(Side side);
    bool waitForCarrier();

    qint64 m_site = 0; ///< process that keeps its namespaces
    bool m_isConnected = false;
    QString m_error;
    std::vector<std::unique_ptr<QProcess>> m_processes;
};

} // namespace testsupport

/// Skips a test that cannot be without networks of its own, and says why.
#define KO_NEED_NETWORKS()                                                                                   \
    do {                                                                                                     \
        const QString missing = testsupport::NetworkNamespaces::missing();                                   \
        if (!missing.isEmpty()) {                                                                            \
            QTest::qSkip(qPrintable(missing), __FILE__, __LINE__);                                           \
            return;                                                                                          \
        }                                                                                                    \
    } while (false)

#endif
