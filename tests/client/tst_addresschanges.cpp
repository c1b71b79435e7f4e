#include "AddressChangesDialog.h"
#include "Languages.h"
#include "ScannerStatus.h"
#include "audit/AuditLog.h"
#include "discovery/Scanners.h"
#include "ko/IPDeviceNode.h"
#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include <QPushButton>
#include <QTableWidget>
#include <QTest>

using namespace ko;
using testsupport::child;

namespace {

class FakeScanner : public Scanner
{
public:
    QString name() const override { return QStringLiteral("ARP"); }
    void start(unsigned, int) override {}
    void stop() override {}
    ScannerState state() const override { return m_state; }
    void set(const ScannerState& state)
    {
        m_state = state;
        emit stateChanged();
    }

private:
    ScannerState m_state;
};

} // namespace

class AddressChangesTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { begin({"<b>Gate</b> 0", "<b>Gate</b> 1", "<b>Gate</b> 2"}); }
    void cleanup() { m_host.reset(); }

    void nothingIsSelectedAtFirst();
    void namesAreInNaturalOrder();
    void selectedIsAccepted();
    void allAreAccepted();
    void selectedIsDismissed();
    void looks();
    void scannersAreShown();

private:
    void begin(const QStringList& names);
    void select(QWidget* dialog, int row)
    {
        child<QTableWidget>(dialog, "changesTableWidget")->selectRow(row);
    }
    static void press(QWidget* dialog, const char* name)
    {
        QTest::mouseClick(child<QPushButton>(dialog, name), Qt::LeftButton);
    }
    HostNodeDB& db() { return *m_host->db(); }
    QString address(int i) { return db().summary(m_ids.at(i)).location; }

    std::unique_ptr<testsupport::HostFixture> m_host;
    QStringList m_ids;
};

void AddressChangesTest::begin(const QStringList& names)
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_ids.clear();
    QVector<DiscoveredDevice> moved;
    for (int i = 0; i < 3; ++i) {
        const QString mac = QStringLiteral("00:11:22:33:44:0%1").arg(i);
        m_ids.append(m_host->add(IPDeviceType, names.at(i), QStringLiteral("10.0.0.%1").arg(i + 1)));
        m_host->change(m_ids.constLast(), [&mac](Node* node) {
            dynamic_cast<IPDeviceNode*>(node)->setMacAddress(MACAddress(mac));
        });
        DiscoveredDevice device;
        device.name = names.at(i);
        device.address = QStringLiteral("10.0.9.%1").arg(i + 1);
        device.macAddress = mac;
        moved.append(device);
    }
    Scanners::of(db()).intake().take(moved);
    KO_TRY_COMPARE(int(Scanners::of(db()).intake().addressChanges().size()), 3);
}

void AddressChangesTest::nothingIsSelectedAtFirst()
{
    AddressChangesDialog dialog(Scanners::of(db()).intake());
    const auto* table = child<QTableWidget>(&dialog, "changesTableWidget");
    QCOMPARE(table->rowCount(), 3);
    QCOMPARE(table->item(1, 1)->text(), QStringLiteral("10.0.0.2"));
    QCOMPARE(table->item(1, 2)->text(), QStringLiteral("10.0.9.2"));
    QVERIFY(!child<QPushButton>(&dialog, "acceptButton")->isEnabled());
    QVERIFY(!child<QPushButton>(&dialog, "dismissButton")->isEnabled());
    QVERIFY(child<QPushButton>(&dialog, "acceptAllButton")->isEnabled());
}

void AddressChangesTest::namesAreInNaturalOrder()
{
    begin({"Gate 10", "gate 2", "Gate 1"});
    AddressChangesDialog dialog(Scanners::of(db()).intake());
    dialog.show();
    const auto* table = child<QTableWidget>(&dialog, "changesTableWidget");
    QStringList shown;
    for (int row = 0; row < table->rowCount(); ++row)
        shown.append(table->item(row, 0)->text());
    QCOMPARE(shown, QStringList({"Gate 1", "gate 2", "Gate 10"}));
    select(&dialog, 2);
    press(&dialog, "acceptButton"); // the row that is seen is the one that is meant
    QCOMPARE(address(0), QStringLiteral("10.0.9.1"));
    QCOMPARE(address(1), QStringLiteral("10.0.0.2"));
}

void AddressChangesTest::selectedIsAccepted()
{
    AddressChangesDialog dialog(Scanners::of(db()).intake());
    dialog.show();
    const qint64 logged = db().auditLog().count();
    select(&dialog, 1);
    press(&dialog, "acceptButton");
    QCOMPARE(address(0), QStringLiteral("10.0.0.1"));
    QCOMPARE(address(1), QStringLiteral("10.0.9.2"));
    QCOMPARE(address(2), QStringLiteral("10.0.0.3"));
    QCOMPARE(db().auditLog().count(), logged + 1);
    QCOMPARE(child<QTableWidget>(&dialog, "changesTableWidget")->rowCount(), 2);
    QVERIFY(!child<QPushButton>(&dialog, "acceptButton")->isEnabled());
}

void AddressChangesTest::allAreAccepted()
{
    AddressChangesDialog dialog(Scanners::of(db()).intake());
    dialog.show();
    press(&dialog, "acceptAllButton");
    for (int i = 0; i < 3; ++i)
        QCOMPARE(address(i), QStringLiteral("10.0.9.%1").arg(i + 1));
    QVERIFY(!child<QPushButton>(&dialog, "acceptAllButton")->isEnabled());
}

void AddressChangesTest::selectedIsDismissed()
{
    AddressChangesDialog dialog(Scanners::of(db()).intake());
    dialog.show();
    select(&dialog, 0);
    press(&dialog, "dismissButton");
    QCOMPARE(address(0), QStringLiteral("10.0.0.1"));
    QCOMPARE(child<QTableWidget>(&dialog, "changesTableWidget")->rowCount(), 2);
}

void AddressChangesTest::looks()
{
    AddressChangesDialog dialog(Scanners::of(db()).intake());
    dialog.show();
    const QString folder = qEnvironmentVariable("KO_PICTURES");
    if (!folder.isEmpty())
        QVERIFY(dialog.grab().save(folder + QStringLiteral("/AddressChangesDialog.png")));
    QVERIFY(dialog.sizeHint().width() <= dialog.width());
}

void AddressChangesTest::scannersAreShown()
{
    auto owned = std::make_unique<FakeScanner>();
    FakeScanner* scanner = owned.get();
    Scanners::of(db()).add(std::move(owned));
    const ScannerStatus status(db());
    QCOMPARE(status.text(), QString());
    QCOMPARE(status.textFormat(), Qt::PlainText);
    ScannerState state;
    state.phase = ScannerState::Running;
    state.where = QStringLiteral("eth0, 10.0.0.0/24");
    scanner->set(state);
    QCOMPARE(status.text(), QStringLiteral("ARP: searching, eth0, 10.0.0.0/24"));
    state.done = 3;
    state.total = 254;
    scanner->set(state);
    QCOMPARE(status.text(), QStringLiteral("ARP: 3 of 254, eth0, 10.0.0.0/24"));
    state.phase = ScannerState::Done;
    scanner->set(state);
    QCOMPARE(status.text(), QStringLiteral("ARP: done"));
    state.phase = ScannerState::Cancelled;
    scanner->set(state);
    QCOMPARE(status.text(), QStringLiteral("ARP: cancelled"));
    state.phase = ScannerState::Unavailable;
    state.reason = QStringLiteral("no network");
    scanner->set(state);
    QCOMPARE(status.text(), QStringLiteral("ARP: not available (no network)"));

    // A state that lasts is said in the language that is chosen meanwhile.
    state.reason = {"ArpScanner", "no IPv4 network is attached"};
    scanner->set(state);
    QCOMPARE(status.text(), QStringLiteral("ARP: not available (no IPv4 network is attached)"));
    Languages::use(QStringLiteral("de"));
    KO_TRY_COMPARE(status.text(), QStringLiteral("ARP: nicht verfügbar (kein IPv4-Netzwerk angeschlossen)"));
    Languages::use(QStringLiteral("en"));
}

KO_TEST_MAIN(AddressChangesTest)
#include "tst_addresschanges.moc"
