#include "AuditLogDialog.h"
#include "audit/AuditLog.h"
#include "audit/GenericLogEntry.h"
#include "dialogs/NodeDBViewer.h"
#include "dialogs/NodeOverviewDialog.h"
#include "discovery/DeviceIntake.h"
#include "discovery/Scanners.h"
#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/TestMain.h"
#include "utils/NaturalOrder.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QTreeView>

using namespace ko;
using testsupport::child;

namespace {

/// On the model of a view, and on the one behind it.
class BothTested
{
public:
    explicit BothTested(const QAbstractItemView& view)
        : proxy(qobject_cast<QSortFilterProxyModel*>(view.model()))
        , m_proxyTester(proxy, QAbstractItemModelTester::FailureReportingMode::QtTest)
        , m_sourceTester(proxy->sourceModel(), QAbstractItemModelTester::FailureReportingMode::QtTest)
    {
    }

    QSortFilterProxyModel* const proxy;

private:
    const QAbstractItemModelTester m_proxyTester;
    const QAbstractItemModelTester m_sourceTester;
};

QVector<DiscoveredDevice> devices(int count)
{
    QVector<DiscoveredDevice> all;
    for (int i = 0; i < count; ++i) {
        DiscoveredDevice device;
        device.name = QStringLiteral("Camera %1").arg(i);
        device.address = QStringLiteral("10.3.%1.%2").arg(i / 200).arg(1 + i % 200);
        device.port = 80;
        all.append(device);
    }
    return all;
}

} // namespace

/// The models of the windows, as they change in use.
class tst_ItemModels : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_host = std::make_unique<testsupport::HostFixture>(); }
    void cleanup() { m_host.reset(); }

    void overviewWhileDevicesArrive();
    void overviewOfManyAtOnce();
    void browserWhileNodesChange();
    void auditLogPageByPage();

private:
    std::unique_ptr<testsupport::HostFixture> m_host;
};

void tst_ItemModels::overviewWhileDevicesArrive()
{
    NodeOverviewDialog dialog;
    auto* view = child<QTreeView>(&dialog, "nodesTreeView");
    const BothTested tested(*view);
    view->sortByColumn(2, Qt::DescendingOrder);
    DeviceIntake& intake = Scanners::of(*m_host->db()).intake();
    intake.beginScan();
    intake.take(devices(300));
    QTRY_COMPARE_WITH_TIMEOUT(tested.proxy->rowCount(), 300, 30000);
    for (int i = 1; i < 300; ++i)
        QVERIFY(compareNaturally(tested.proxy->index(i - 1, 2).data().toString(),
                                 tested.proxy->index(i, 2).data().toString(), Qt::CaseInsensitive) >= 0);
    const QModelIndexList some = {tested.proxy->index(0, 0), tested.proxy->index(150, 0),
                                  tested.proxy->index(299, 0)};
    for (const QModelIndex& index : some)
        view->selectionModel()->select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    child<QAction>(&dialog, "actionRemove_selected")->trigger();
    QCOMPARE(tested.proxy->rowCount(), 297);
    child<QAction>(&dialog, "actionRemove_all")->trigger();
    QCOMPARE(tested.proxy->rowCount(), 0);
    m_host->add(IPDeviceType, QStringLiteral("Gate"), QStringLiteral("10.0.0.1"));
    QCOMPARE(tested.proxy->rowCount(), 1);
}

/// The selection and the current row stay with their nodes, and all is sorted once.
void tst_ItemModels::overviewOfManyAtOnce()
{
    NodeOverviewDialog dialog;
    auto* view = child<QTreeView>(&dialog, "nodesTreeView");
    view->sortByColumn(0, Qt::AscendingOrder);
    for (int i = 0; i < 50; ++i)
        m_host->add(IPDeviceType, QStringLiteral("Yard %1").arg(i, 2, 10, QChar('0')));
    QCoreApplication::processEvents();
    view->setCurrentIndex(view->model()->index(7, 0));
    const QSignalSpy sorted(view->model(), &QAbstractItemModel::layoutChanged);
    const QSignalSpy inserted(view->model(), &QAbstractItemModel::rowsInserted);
    QStringList ids;
    for (int i = 0; i < 3000; ++i)
        ids.append(
            m_host->add(IPDeviceType, QStringLiteral("Gate %1").arg(i * 7919 % 3000, 4, 10, QChar('0'))));
    const BothTested tested(*view); // which look at all rows at each signal
    QTRY_COMPARE(tested.proxy->rowCount(), 3050);
    QVERIFY2(inserted.count() <= 1000, qPrintable(QString::number(inserted.count())));
    QCOMPARE(sorted.count(), 1);
    QCOMPARE(view->currentIndex().data().toString(), QStringLiteral("Yard 07"));
    QCOMPARE(view->selectionModel()->selectedRows().value(0).data().toString(), QStringLiteral("Yard 07"));
    QVERIFY(tested.proxy->dynamicSortFilter());
    for (int i = 1; i < 3050; ++i)
        QVERIFY(tested.proxy->index(i - 1, 0).data().toString() <=
                tested.proxy->index(i, 0).data().toString());
}

void tst_ItemModels::browserWhileNodesChange()
{
    const QString gate = m_host->add(IPDeviceType, QStringLiteral("Gate"), QStringLiteral("10.0.0.1"));
    NodeDBViewer browser;
    const BothTested tested(*child<QTableView>(&browser, "nodesTableView"));
    m_host->add(IPDeviceType, QStringLiteral("Yard"), QStringLiteral("10.0.0.2"));
    m_host->change(gate, [](Node* node) {
        node->setStringProperty(QStringLiteral("Name"), QStringLiteral("Main gate"));
    });
    tested.proxy->sort(1, Qt::DescendingOrder);
    QCOMPARE(tested.proxy->index(0, 1).data().toString(), QStringLiteral("Yard"));
    QCOMPARE(tested.proxy->index(1, 1).data().toString(), QStringLiteral("Main gate"));
    m_host->db()->removeNode(gate);
    QCOMPARE(tested.proxy->rowCount(), 2); // it stays listed
}

void tst_ItemModels::auditLogPageByPage()
{
    const int count = 1100;
    for (int i = 0; i < count; ++i)
        m_host->db()->auditLog().log(
            GenericLogEntry("Test", {{FourChars("Name"), QStringLiteral("Gate %1").arg(i)}}));
    AuditLogDialog dialog(m_host->db()->auditLog());
    const auto* view = child<QTableView>(&dialog, "entriesTableView");
    QVERIFY(view->model()->rowCount() < count);
    const BothTested tested(*view); // which reads on, too
    while (tested.proxy->canFetchMore(QModelIndex()))
        tested.proxy->fetchMore(QModelIndex());
    QCOMPARE(tested.proxy->rowCount(), 1 + count); // it begins with the database
    auto* search = child<QLineEdit>(&dialog, "searchLineEdit");
    search->setText(QStringLiteral("nothing has this"));
    QCOMPARE(tested.proxy->rowCount(), 0);
    search->clear();
    QCOMPARE(tested.proxy->rowCount(), 1 + count);
    // The toolkit loses the animation of a clear button that goes while it fades.
    QTest::qWait(300);
}

KO_TEST_MAIN(tst_ItemModels)
#include "tst_itemmodels.moc"
