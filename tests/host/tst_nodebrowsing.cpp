#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "dialogs/GenericNodeViewer.h"
#include "dialogs/NodeDBViewer.h"
#include "kogen/Property.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QTableWidget>

using namespace ko;
using testsupport::child;

class tst_NodeBrowsing : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_host = std::make_unique<testsupport::HostFixture>(); }
    void cleanup() { m_host.reset(); }

    void viewerShowsEverythingStored();
    void viewerOfUnknownNodeIsEmpty();
    void viewerIsASnapshot();
    void valueWithoutTextIsEmpty();
    void closeDeletesTheViewer();
    void viewerForm();

    void emptyDatabaseHasThreeHeaders();
    void browserListsEveryNode();
    void insertedNodeIsAdded();
    void removedNodeStays();
    void updatedNodeIsShown();
    void cellsAreSelectableAndNotEditable();
    void headerClickDoesNotSort();
    void doubleClickOpensAWindowEachTime();
    void modelOutlivesTheBrowser();
    void browserForm();

private:
    static QStringList column(const QAbstractItemModel* model, int column);
    static QStringList tableRow(const QTableWidget* table, int row);

    std::unique_ptr<testsupport::HostFixture> m_host;
};

QStringList tst_NodeBrowsing::column(const QAbstractItemModel* model, int column)
{
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts.append(model->index(row, column).data().toString());
    return texts;
}

QStringList tst_NodeBrowsing::tableRow(const QTableWidget* table, int row)
{
    QStringList texts;
    for (int column = 0; column < table->columnCount(); ++column)
        texts.append(table->item(row, column)->text());
    return texts;
}

void tst_NodeBrowsing::viewerShowsEverythingStored()
{
    const QString id = m_host->add(RecordingFolderType, "/srv/rec");
    m_host->change(id, [](Node* node) {
        node->setStringProperty("Path", "/srv/rec");
        node->setBoolProperty("UseGlobalPath", false);
        node->setIntProperty("Age", 7);
    });
    GenericNodeViewer viewer(id, nullptr);
    QCOMPARE(child<QLineEdit>(&viewer, "nodeTypeLineEdit")->text(), QString("Recording Folder"));
    QCOMPARE(child<QLineEdit>(&viewer, "nodeNameLineEdit")->text(), QString("/srv/rec"));
    const auto* table = child<QTableWidget>(&viewer, "propertyTableWidget");
    QStringList names;
    for (int row = 0; row < table->rowCount(); ++row)
        names.append(table->item(row, 1)->text());
    QStringList sorted = names;
    std::sort(sorted.begin(), sorted.end());
    QCOMPARE(names, sorted);
    QCOMPARE(names, m_host->db()->node(id)->properties().allPropertyNames());
    QCOMPARE(tableRow(table, int(names.indexOf("Path"))), QStringList({"string", "Path", "/srv/rec"}));
    QCOMPARE(tableRow(table, int(names.indexOf("UseGlobalPath"))),
             QStringList({"bool", "UseGlobalPath", "false"}));
    QCOMPARE(tableRow(table, int(names.indexOf("Age"))), QStringList({"int", "Age", "7"}));
}

void tst_NodeBrowsing::viewerOfUnknownNodeIsEmpty()
{
    GenericNodeViewer viewer("unknown", nullptr);
    QVERIFY(child<QLineEdit>(&viewer, "nodeTypeLineEdit")->text().isEmpty());
    QVERIFY(child<QLineEdit>(&viewer, "nodeNameLineEdit")->text().isEmpty());
    QCOMPARE(child<QTableWidget>(&viewer, "propertyTableWidget")->rowCount(), 0);
}

void tst_NodeBrowsing::viewerIsASnapshot()
{
    const QString id = m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    GenericNodeViewer viewer(id, nullptr);
    m_host->change(id, [](Node* node) { node->setStringProperty("Name", "Yard"); });
    QCOMPARE(child<QLineEdit>(&viewer, "nodeNameLineEdit")->text(), QString("Gate"));
}

void tst_NodeBrowsing::valueWithoutTextIsEmpty()
{
    const QString id = m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    kogen::PropertySet addresses;
    addresses.insert(kom::makeSmart<kogen::StringProperty>(QString("0"), QString("10.0.0.1")));
    m_host->change(id, [&](Node* node) { node->setPropertySetProperty("IPAddresses", addresses); });
    GenericNodeViewer viewer(id, nullptr);
    const auto* table = child<QTableWidget>(&viewer, "propertyTableWidget");
    const int row = int(m_host->db()->node(id)->properties().allPropertyNames().indexOf("IPAddresses"));
    QCOMPARE(tableRow(table, row), QStringList({"set", "IPAddresses", ""}));
}

void tst_NodeBrowsing::closeDeletesTheViewer()
{
    QPointer<GenericNodeViewer> viewer(new GenericNodeViewer("unknown", nullptr));
    viewer->show();
    QTest::mouseClick(child<QPushButton>(viewer, "closeButton"), Qt::LeftButton);
    KO_TRY_VERIFY(viewer.isNull());
}

void tst_NodeBrowsing::viewerForm()
{
    GenericNodeViewer viewer("unknown", nullptr);
    QCOMPARE(viewer.objectName(), QString("GenericNodeViewer"));
    QCOMPARE(QString(viewer.metaObject()->className()), QString("ko::GenericNodeViewer"));
    QCOMPARE(viewer.windowTitle(), QString("Generic node viewer"));
    QCOMPARE(viewer.width(), 370);
    QVERIFY(viewer.isWindow());
    const auto* table = child<QTableWidget>(&viewer, "propertyTableWidget");
    QCOMPARE(table->editTriggers(), QAbstractItemView::NoEditTriggers);
    QStringList headers;
    for (int column = 0; column < table->columnCount(); ++column)
        headers.append(table->horizontalHeaderItem(column)->text());
    QCOMPARE(headers, QStringList({"Type", "Name", "Value"}));
    QCOMPARE(child<QPushButton>(&viewer, "closeButton")->text(), QString("Close"));
}

void tst_NodeBrowsing::emptyDatabaseHasThreeHeaders()
{
    NodeDBViewer browser;
    const QAbstractItemModel* model = child<QTableView>(&browser, "nodesTableView")->model();
    QCOMPARE(model->rowCount(), 0);
    QCOMPARE(model->columnCount(), 3);
    QCOMPARE(model->headerData(0, Qt::Horizontal).toString(), QString("Symbol"));
    QCOMPARE(model->headerData(1, Qt::Horizontal).toString(), QString("Name"));
    QCOMPARE(model->headerData(2, Qt::Horizontal).toString(), QString("Node type"));
    const auto* source = qobject_cast<const QSortFilterProxyModel*>(model)->sourceModel();
    QVERIFY(!source->headerData(3, Qt::Horizontal, Qt::DisplayRole).isValid());
    QVERIFY(!source->headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
    QVERIFY(!source->headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
}

void tst_NodeBrowsing::browserListsEveryNode()
{
    m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    m_host->add(ViewType, "Lobby");
    NodeDBViewer browser;
    QAbstractItemModel* model = child<QTableView>(&browser, "nodesTableView")->model();
    const QAbstractItemModelTester tester(model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(column(model, 1), QStringList({"Gate", "Lobby"}));
    QCOMPARE(column(model, 2), QStringList({"IP Camera", "View"}));
    QVERIFY(!model->index(0, 0).data(Qt::DecorationRole).value<QIcon>().isNull());
    QVERIFY(!model->index(0, 0).data().isValid());
    QVERIFY(!model->index(0, 1).data(Qt::DecorationRole).isValid());
}

void tst_NodeBrowsing::insertedNodeIsAdded()
{
    m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    NodeDBViewer browser;
    QAbstractItemModel* model = child<QTableView>(&browser, "nodesTableView")->model();
    const QAbstractItemModelTester tester(model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_host->add(IPDeviceType, "Yard", "10.0.0.2");
    QCOMPARE(column(model, 1), QStringList({"Gate", "Yard"}));
}

void tst_NodeBrowsing::removedNodeStays()
{
    const QString gate = m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    m_host->add(IPDeviceType, "Yard", "10.0.0.2");
    NodeDBViewer browser;
    auto* view = child<QTableView>(&browser, "nodesTableView");
    m_host->db()->removeNode(gate);
    QCOMPARE(view->model()->rowCount(), 2);
    QCOMPARE(column(view->model(), 1), QStringList({"", "Yard"}));
    QVERIFY(!browser.findChild<GenericNodeViewer*>());
}

void tst_NodeBrowsing::updatedNodeIsShown()
{
    const QString gate = m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    NodeDBViewer browser;
    QAbstractItemModel* model = child<QTableView>(&browser, "nodesTableView")->model();
    QSignalSpy changed(model, SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>)));
    m_host->change(gate, [](Node* node) { node->setStringProperty("Name", "Yard"); });
    QCOMPARE(changed.count(), 1);
    QCOMPARE(column(model, 1), QStringList("Yard"));
}

void tst_NodeBrowsing::cellsAreSelectableAndNotEditable()
{
    m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    NodeDBViewer browser;
    const auto* proxy =
        qobject_cast<const QSortFilterProxyModel*>(child<QTableView>(&browser, "nodesTableView")->model());
    for (int column = 0; column < 3; ++column)
        QCOMPARE(proxy->sourceModel()->index(0, column).flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    QCOMPARE(proxy->sourceModel()->flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
}

void tst_NodeBrowsing::headerClickDoesNotSort()
{
    m_host->add(IPDeviceType, "Yard", "10.0.0.1");
    m_host->add(IPDeviceType, "Gate", "10.0.0.2");
    NodeDBViewer browser;
    browser.show();
    auto* view = child<QTableView>(&browser, "nodesTableView");
    QVERIFY(!view->isSortingEnabled());
    const QHeaderView* header = view->horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(header->sectionViewportPosition(1) + 5, header->height() / 2));
    QCOMPARE(column(view->model(), 1), QStringList({"Yard", "Gate"}));
}

void tst_NodeBrowsing::doubleClickOpensAWindowEachTime()
{
    m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    NodeDBViewer browser;
    browser.show();
    auto* view = child<QTableView>(&browser, "nodesTableView");
    const QPoint cell = view->visualRect(view->model()->index(0, 1)).center();
    for (int count = 1; count <= 2; ++count) {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, cell);
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, cell);
        QCOMPARE(browser.findChildren<GenericNodeViewer*>().size(), count);
    }
    const auto* viewer = browser.findChild<GenericNodeViewer*>();
    QVERIFY(viewer->isVisible() && viewer->isWindow() && !viewer->isModal());
    QCOMPARE(child<QLineEdit>(viewer, "nodeNameLineEdit")->text(), QString("Gate"));
}

void tst_NodeBrowsing::modelOutlivesTheBrowser()
{
    m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    QPointer<QAbstractItemModel> proxy;
    QPointer<QAbstractItemModel> model;
    {
        NodeDBViewer browser;
        proxy = child<QTableView>(&browser, "nodesTableView")->model();
        model = qobject_cast<QSortFilterProxyModel*>(proxy.data())->sourceModel();
    }
    QVERIFY(proxy && model);
    m_host->add(IPDeviceType, "Yard", "10.0.0.2"); // the list lives on with the model
    QCOMPARE(column(model, 1), QStringList({"Gate", "Yard"}));
    delete proxy;
    delete model;
}

void tst_NodeBrowsing::browserForm()
{
    NodeDBViewer browser;
    QCOMPARE(browser.objectName(), QString("NodeDBViewer"));
    QCOMPARE(QString(browser.metaObject()->className()), QString("ko::NodeDBViewer"));
    QCOMPARE(browser.windowTitle(), QString("NodeDBViewer"));
    QCOMPARE(browser.size(), QSize(450, 444));
    QVERIFY(child<QTableView>(&browser, "nodesTableView")->alternatingRowColors());
    QVERIFY(browser.metaObject()->indexOfSlot("openPropertyWindow(QModelIndex)") >= 0);
    browser.show();
    QTest::mouseClick(child<QPushButton>(&browser, "closeButton"), Qt::LeftButton);
    QVERIFY(!browser.isVisible());
}

KO_TEST_MAIN(tst_NodeBrowsing)
#include "tst_nodebrowsing.moc"
