#include "../host/StoreTesting.h"
#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "MainWindow.h"
#include "store/LogCheckpoint.h"
#include "store/NodeStore.h"

#include <QMessageBox>
#include <QProcess>
#include <QToolButton>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;
using testsupport::PlainSql;

/// Whoever uses the client is told that somebody has altered its logs.
class tst_LogNotice : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void goodLogIsKeptInMind();
    void alteredLogIsTold();
    void cutOffLogIsTold();
    void closingDoesNotWait();
    void commandLine();
    void thinningFromTheCommandLine();

private:
    QString file() const { return m_host->db()->fileName(); }
    QToolButton* notice() const { return child<QToolButton>(m_window.get(), "logNotice"); }
    void open();
    QStringList told();
    int run(const QStringList& command, QString* said, QString* printed = nullptr) const;
    int verify(QString* said) const;

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
};

void tst_LogNotice::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    for (int i = 0; i < 5; ++i) {
        testsupport::addCamera(*m_host->db(), QString::number(i), QStringLiteral("10.0.0.%1").arg(i + 1));
        QTest::qWait(1);
    }
    QVERIFY(m_host->db()->flush());
}

void tst_LogNotice::cleanup()
{
    m_window.reset();
    LogCheckpoint::forget(file());
    m_host.reset();
}

void tst_LogNotice::open()
{
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
}

/// What the box says that the button in the status bar opens.
QStringList tst_LogNotice::told()
{
    QString text;
    const ModalAnswer answer([&text](QDialog* dialog) {
        text = qobject_cast<QMessageBox*>(dialog)->text();
        dialog->accept();
    });
    QTest::mouseClick(notice(), Qt::LeftButton);
    return text.split(QLatin1Char('\n')).mid(2);
}

void tst_LogNotice::goodLogIsKeptInMind()
{
    open();
    KO_TRY_VERIFY(LogCheckpoint::read(file()).link > 0);
    QVERIFY(!notice()->isVisible());
    const qint64 link = LogCheckpoint::read(file()).link;
    testsupport::addCamera(*m_host->db(), QStringLiteral("more"), QStringLiteral("10.0.0.9"));
    QVERIFY(m_host->db()->flush());
    m_window.reset(); // with what was written meanwhile
    QVERIFY(LogCheckpoint::read(file()).link > link);
    QCOMPARE(LogCheckpoint::read(file()).hash, NodeStore::endOfLogs(file()).hash);
}

void tst_LogNotice::alteredLogIsTold()
{
    PlainSql(file()).run(QStringLiteral("UPDATE change_sets SET user = 'nobody' WHERE seq = 3"));
    open();
    QVERIFY(!notice()->isVisible());
    KO_TRY_VERIFY(notice()->isVisible());
    QCOMPARE(notice()->toolTip(), QStringLiteral("Change set 3 was altered."));
    QCOMPARE(told(), QStringList(QStringLiteral("Change set 3 was altered.")));
    m_window.reset();
    QVERIFY2(LogCheckpoint::read(file()).log.isEmpty(), "what was altered must not count as good");
}

void tst_LogNotice::cutOffLogIsTold()
{
    open();
    KO_TRY_VERIFY(LogCheckpoint::read(file()).link > 0);
    m_window.reset();
    {
        PlainSql sql(file());
        sql.run(QStringLiteral("DELETE FROM changes WHERE change_set > 4"));
        sql.run(QStringLiteral("DELETE FROM change_sets WHERE seq > 4"));
        sql.run(QStringLiteral("DELETE FROM chain WHERE set_end > 4"));
    }
    open();
    KO_TRY_VERIFY(notice()->isVisible());
    QCOMPARE(told(), QStringList(QStringLiteral("What came after change set 4 was cut off.")));
    // Once more: it is not forgotten by being told.
    open();
    KO_TRY_VERIFY(notice()->isVisible());
}

void tst_LogNotice::closingDoesNotWait()
{
    open();
    m_window.reset();
    QVERIFY(LogCheckpoint::read(file()).log.isEmpty()); // nobody has looked yet
}

int tst_LogNotice::run(const QStringList& command, QString* said, QString* printed) const
{
    QProcess client;
    client.start(QStringLiteral(KO_KOCLIENT), QStringList({QStringLiteral("--db"), file()}) + command);
    if (!client.waitForFinished(testsupport::Patience))
        return -1;
    *said = QString::fromUtf8(client.readAllStandardError());
    if (printed)
        *printed = QString::fromUtf8(client.readAllStandardOutput());
    return client.exitCode();
}

int tst_LogNotice::verify(QString* said) const
{
    return run({QStringLiteral("--verify-log")}, said);
}

void tst_LogNotice::commandLine()
{
    QString said;
    QCOMPARE(verify(&said), 0);
    QCOMPARE(said, QString());
    QVERIFY(LogCheckpoint::read(file()).link > 0);
    PlainSql(file()).run(QStringLiteral("DELETE FROM changes WHERE seq = 4"));
    QCOMPARE(verify(&said), 1);
    QCOMPARE(said, QStringLiteral("Line 4 of the change sets is missing.\n"));
    PlainSql(file()).run(QStringLiteral("DROP TABLE chain"));
    QCOMPARE(verify(&said), 3);
    QVERIFY(!said.isEmpty());
}

/// Everything that is there is of today; what is asked for must be a number of days.
void tst_LogNotice::thinningFromTheCommandLine()
{
    QString said;
    QString printed;
    QCOMPARE(run({QStringLiteral("--thin-history"), QStringLiteral("30")}, &said, &printed), 0);
    QCOMPARE(said, QString());
    QVERIFY2(printed.startsWith(QLatin1String("0 details")), qPrintable(printed));
    for (const char* bad : {"0", "-1", "a month"}) {
        QCOMPARE(run({QStringLiteral("--thin-history"), QLatin1String(bad)}, &said), 64);
        QVERIFY2(said.contains(QLatin1String("number of days")), qPrintable(said));
    }
    QCOMPARE(run({QStringLiteral("--thin-history"), QString()}, &said), 64);
    QCOMPARE(verify(&said), 0);
}

KO_TEST_MAIN(tst_LogNotice)
#include "tst_lognotice.moc"
