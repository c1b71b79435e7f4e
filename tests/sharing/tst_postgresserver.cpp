#include "support/PostgresServer.h"
#include "support/TestMain.h"

#include <QElapsedTimer>

using namespace testsupport;

/// The server that the tests of sharing lean on: what they do to it must really happen.
class TestPostgresServer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void itIsNotRoot();
    void killedItKeepsWhatWasCommitted();
    void stoppedItKeepsWhatWasCommitted();
    void pausedItDoesNothing();
    void restoredItForgets();

private:
    QString rows() { return m_server.run(QStringLiteral("one"), QStringLiteral("SELECT count(*) FROM t")); }
    void addRow() { m_server.run(QStringLiteral("one"), QStringLiteral("INSERT INTO t VALUES (1)")); }

    PostgresServer m_server;
};

void TestPostgresServer::initTestCase()
{
    QVERIFY2(m_server.start(), qPrintable(m_server.error()));
    QVERIFY2(m_server.createDatabase(QStringLiteral("one")), qPrintable(m_server.error()));
    m_server.run(QStringLiteral("one"), QStringLiteral("CREATE TABLE t (n integer)"));
    QCOMPARE(rows(), QStringLiteral("0"));
}

void TestPostgresServer::itIsNotRoot()
{
    m_server.run(QStringLiteral("one"), QStringLiteral("COPY t TO '/root/file'"));
    QVERIFY2(m_server.error().contains(QStringLiteral("Permission denied")), qPrintable(m_server.error()));
}

void TestPostgresServer::killedItKeepsWhatWasCommitted()
{
    const int before = rows().toInt();
    for (int i = 1; i <= 3; ++i) {
        addRow();
        m_server.kill();
        QCOMPARE(rows(), QString());
        QVERIFY(!m_server.error().isEmpty());
        QVERIFY2(m_server.start(), qPrintable(m_server.error()));
        QCOMPARE(rows().toInt(), before + i);
    }
}

void TestPostgresServer::stoppedItKeepsWhatWasCommitted()
{
    const int before = rows().toInt();
    addRow();
    m_server.stop();
    QVERIFY2(m_server.start(), qPrintable(m_server.error()));
    QCOMPARE(rows().toInt(), before + 1);
}

void TestPostgresServer::pausedItDoesNothing()
{
    QProcess client;
    m_server.pause();
    client.start(QStringLiteral("psql"),
                 {QStringLiteral("-XAtq"), QStringLiteral("-c"), QStringLiteral("SELECT 7"),
                  m_server.address(QStringLiteral("one"))});
    QVERIFY(!client.waitForFinished(500));
    m_server.resume();
    QVERIFY(client.waitForFinished(20000));
    QCOMPARE(client.readAllStandardOutput().trimmed(), QByteArray("7"));
}

void TestPostgresServer::restoredItForgets()
{
    const int before = rows().toInt();
    m_server.stop();
    QVERIFY2(m_server.save(), qPrintable(m_server.error()));
    QVERIFY2(m_server.start(), qPrintable(m_server.error()));
    addRow();
    QCOMPARE(rows().toInt(), before + 1);
    m_server.stop();
    QVERIFY2(m_server.restore(), qPrintable(m_server.error()));
    QVERIFY2(m_server.start(), qPrintable(m_server.error()));
    QCOMPARE(rows().toInt(), before);
}

KO_TEST_MAIN(TestPostgresServer)
#include "tst_postgresserver.moc"
