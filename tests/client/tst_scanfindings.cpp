#include "client/WindowFixture.h"
#include "discovery/Scanners.h"
#include "support/Answers.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include <QMessageBox>
#include <QStatusBar>

using namespace ko;
using testsupport::Answers;
using testsupport::child;
using testsupport::ModalAnswer;

namespace {

DiscoveredDevice device(int number)
{
    DiscoveredDevice device;
    device.name = QString("Found %1").arg(number);
    device.address = QString("192.168.7.%1").arg(number);
    return device;
}

} // namespace

/// What a scan has added while the overview was open, and whether it stays.
class tst_ScanFindings : public QObject, protected testsupport::WindowFixture
{
    Q_OBJECT

private slots:
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void keptOrTakenOut_data();
    void keptOrTakenOut();
    void onlyWhatIsStillAsItWas();
    void nothingFoundAsksNothing();
    void agreedByOk();

private:
    void find(int from, int to) const;
    bool isThere(const QString& name) const;
};

void tst_ScanFindings::find(int from, int to) const
{
    DeviceIntake& intake = Scanners::of(*m_host->db()).intake();
    for (int number = from; number <= to; ++number)
        intake.take({device(number)});
    KO_TRY_VERIFY(intake.isIdle());
}

bool tst_ScanFindings::isThere(const QString& name) const
{
    const QVector<NodeSummary> all = m_host->db()->summaries();
    return std::any_of(all.begin(), all.end(), [&](const NodeSummary& node) { return node.name == name; });
}

void tst_ScanFindings::keptOrTakenOut_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("stays");
    QTest::newRow("kept") << "Keep Them" << true;
    QTest::newRow("taken out") << "Take Them Out Again" << false;
}

void tst_ScanFindings::keptOrTakenOut()
{
    QFETCH(QString, button);
    QFETCH(bool, stays);
    find(1, 1); // by a scan that was left running before
    QString asked;
    const Answers answers({[&](QDialog* overview) {
                               find(2, 4);
                               overview->reject();
                           },
                           [&](QDialog* box) {
                               asked = qobject_cast<QMessageBox*>(box)->text();
                               ModalAnswer::press(button)(box);
                           }});
    trigger("actionOverview");
    QCOMPARE(answers.opened().size(), 2);
    QVERIFY2(asked.contains("3 new device") && asked.contains("Found 4") && !asked.contains("Found 1"),
             qPrintable(asked));
    QVERIFY(isThere("Found 1"));
    for (int number = 2; number <= 4; ++number)
        QCOMPARE(isThere(QString("Found %1").arg(number)), stays);
    const QString said = m_window->statusBar()->currentMessage();
    QVERIFY2(said.startsWith("3 device") && said.contains(stays ? "added" : "taken out"), qPrintable(said));
    if (stays)
        return;
    const ModalAnswer undo([](QDialog* dialog) { dialog->accept(); });
    KO_TRY_VERIFY(child<QAction>(m_window.get(), "actionUndo")->isEnabled());
    trigger("actionUndo");
    QVERIFY(isThere("Found 2") && isThere("Found 3") && isThere("Found 4"));
}

/// What the user has worked on is the user's.
void tst_ScanFindings::onlyWhatIsStillAsItWas()
{
    const Answers answers({[&](QDialog* overview) {
                               find(1, 2);
                               const QString id = m_host->db()->nodeIdList(IPDeviceType).constLast();
                               m_host->change(id,
                                              [](Node* node) { node->setStringProperty("Name", "Mine"); });
                               overview->reject();
                           },
                           ModalAnswer::press("Take Them Out Again")});
    trigger("actionOverview");
    QVERIFY(!isThere("Found 1"));
    QVERIFY(isThere("Mine"));
    QVERIFY(m_window->statusBar()->currentMessage().startsWith("1 device"));
}

void tst_ScanFindings::nothingFoundAsksNothing()
{
    find(1, 1);
    const Answers answers(
        {[&](QDialog* overview) { overview->reject(); }, [](QDialog* box) { box->reject(); }});
    trigger("actionOverview");
    QCOMPARE(answers.opened().size(), 1);
}

void tst_ScanFindings::agreedByOk()
{
    const Answers answers({[&](QDialog* overview) {
                               find(1, 2);
                               overview->accept();
                           },
                           [](QDialog* box) { box->reject(); }});
    trigger("actionOverview");
    QCOMPARE(answers.opened().size(), 1);
    QVERIFY(isThere("Found 1"));
}

KO_TEST_MAIN(tst_ScanFindings)
#include "tst_scanfindings.moc"
