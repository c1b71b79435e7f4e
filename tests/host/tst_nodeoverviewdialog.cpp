#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/PassThroughNodeDB.h"
#include "support/TestMain.h"

#include "dialogs/AddNodeDialog.h"
#include "dialogs/EditNodeDialog.h"
#include "dialogs/NodeOverviewDialog.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTreeView>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

namespace {

/// Watches the scanners of a database that has none of its own.
class ScannerDB : public testsupport::PassThroughNodeDB
{
public:
    using PassThroughNodeDB::PassThroughNodeDB;

    mutable QStringList calls;

    TypeNames readableNodeTypeNames(const QList<ENodeType>* types, bool sorted) const override
    {
        calls.append(
            QString("readableNodeTypeNames(%1,%2)").arg(types ? "list" : "null", sorted ? "true" : "false"));
        return PassThroughNodeDB::readableNodeTypeNames(types, sorted);
    }
    void startScanners(const std::string& name, unsigned interfaces, int limit) override
    {
        calls.append(
            QString("start %1 %2 %3").arg(QString::fromStdString(name)).arg(interfaces, 0, 16).arg(limit));
    }
    void stopScanners(const std::string& name) override
    {
        calls.append(QString("stop %1").arg(QString::fromStdString(name)));
    }
};

} // namespace

class tst_NodeOverviewDialog : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_host = std::make_unique<testsupport::HostFixture>();
        m_db = std::make_unique<ScannerDB>(m_host->db());
    }
    void cleanup()
    {
        m_db.reset();
        m_host.reset();
    }

    void startsEmpty();
    void insertedNodesAreListed();
    void addGoesThroughTheDatabase();
    void editOpensTheNode();
    void enabledStates();
    void removeLeavesTheDatabaseAlone();
    void removeSelectedTakesWhatWasSelected();
    void removeAllAndNewNodes();
    void scanButtons_data();
    void scanButtons();
    void scannerOutlivesTheDialog();
    void filterChangesNothing();
    void selectedAfterOkAndCancel();
    void contextMenuOrderAndTexts();
    void form();

private:
    QTreeView* tree(QDialog& dialog) { return child<QTreeView>(&dialog, "nodesTreeView"); }
    void select(QDialog& dialog, const QList<int>& rows);
    QStringList names(QDialog& dialog);
    QList<bool> enabled(QDialog& dialog);

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<ScannerDB> m_db;
};

void tst_NodeOverviewDialog::select(QDialog& dialog, const QList<int>& rows)
{
    QItemSelectionModel* selection = tree(dialog)->selectionModel();
    selection->clearSelection();
    for (const int row : rows)
        selection->select(tree(dialog)->model()->index(row, 0),
                          QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

QStringList tst_NodeOverviewDialog::names(QDialog& dialog)
{
    QStringList names;
    const QAbstractItemModel* model = tree(dialog)->model();
    for (int row = 0; row < model->rowCount(); ++row)
        names.append(model->index(row, 0).data().toString());
    return names;
}

QList<bool> tst_NodeOverviewDialog::enabled(QDialog& dialog)
{
    return {child<QPushButton>(&dialog, "editButton")->isEnabled(),
            child<QAction>(&dialog, "actionEdit")->isEnabled(),
            child<QAction>(&dialog, "actionRemove")->isEnabled(),
            child<QAction>(&dialog, "actionRemove_selected")->isEnabled()};
}

void tst_NodeOverviewDialog::startsEmpty()
{
    m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    NodeOverviewDialog dialog;
    QCOMPARE(tree(dialog)->model()->rowCount(), 0);
    QVERIFY(dialog.selected().isEmpty());
}

void tst_NodeOverviewDialog::insertedNodesAreListed()
{
    NodeOverviewDialog dialog;
    auto* proxy = qobject_cast<QSortFilterProxyModel*>(tree(dialog)->model());
    const QAbstractItemModelTester proxyTester(proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QAbstractItemModelTester tester(proxy->sourceModel(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_host->add(IPDeviceType, "Yard", "10.0.0.1");
    m_host->add(IPDeviceType, "Gate", "10.0.0.2");
    QCOMPARE(names(dialog), QStringList({"Yard", "Gate"}));
    tree(dialog)->sortByColumn(0, Qt::AscendingOrder);
    m_host->add(ViewType, "Lobby");
    QCOMPARE(names(dialog), QStringList({"Gate", "Lobby", "Yard"}));
}

void tst_NodeOverviewDialog::addGoesThroughTheDatabase()
{
    NodeOverviewDialog dialog;
    dialog.show();
    QStringList namesWhileOpen;
    ModalAnswer answer([&](QDialog* add) {
        QVERIFY(qobject_cast<AddNodeDialog*>(add));
        QCOMPARE(add->parentWidget(), &dialog);
        auto* types = child<QComboBox>(add, "nodeTypeComboBox");
        types->setCurrentIndex(types->findText("IP Camera"));
        QTest::keyClicks(child<QLineEdit>(add, "nameLineEdit"), "Gate");
        QTest::mouseClick(child<QDialogButtonBox>(add, "buttonBox")->button(QDialogButtonBox::Ok),
                          Qt::LeftButton);
        namesWhileOpen = names(dialog);
    });
    QTest::mouseClick(child<QPushButton>(&dialog, "addButton"), Qt::LeftButton);
    QVERIFY(answer.fired());
    QCOMPARE(namesWhileOpen, QStringList("Gate")); // there before the slot that opened the dialog went on
    QVERIFY(m_db->calls.contains("readableNodeTypeNames(null,true)"));
    const QString id = m_host->db()->nodeIdList(IPDeviceType).value(0);
    QCOMPARE(m_host->db()->node(id)->creationContext(), static_cast<void*>(&dialog));
}

void tst_NodeOverviewDialog::editOpensTheNode()
{
    NodeOverviewDialog dialog;
    dialog.show();
    const QString id = m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    select(dialog, {0});
    ModalAnswer answer([&](QDialog* edit) {
        QVERIFY(qobject_cast<EditNodeDialog*>(edit));
        QCOMPARE(edit->windowTitle(), QString("Properties of Gate"));
        QLineEdit* name = child<QLineEdit>(edit, "nameLineEdit");
        name->selectAll();
        QTest::keyClicks(name, "Yard");
        QTest::mouseClick(child<QDialogButtonBox>(edit, "buttonBox")->button(QDialogButtonBox::Ok),
                          Qt::LeftButton);
    });
    QTest::mouseClick(child<QPushButton>(&dialog, "editButton"), Qt::LeftButton);
    QVERIFY(answer.fired());
    QCOMPARE(m_host->db()->node(id)->name(), QString("Yard"));
    QCOMPARE(names(dialog), QStringList("Yard"));
}

void tst_NodeOverviewDialog::enabledStates()
{
    NodeOverviewDialog dialog;
    m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    m_host->add(IPDeviceType, "Yard", "10.0.0.2");
    QCOMPARE(enabled(dialog), QList<bool>({false, false, false, false}));
    select(dialog, {0});
    QCOMPARE(enabled(dialog), QList<bool>({true, true, true, true}));
    select(dialog, {0, 1});
    QCOMPARE(enabled(dialog), QList<bool>({false, false, false, true}));
    select(dialog, {});
    QCOMPARE(enabled(dialog), QList<bool>({false, false, false, false}));
    for (const char* name : {"actionAdd", "actionRemove_all", "actionSelect_all"})
        QVERIFY(child<QAction>(&dialog, name)->isEnabled());
}

void tst_NodeOverviewDialog::removeLeavesTheDatabaseAlone()
{
    NodeOverviewDialog dialog;
    m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    m_host->add(IPDeviceType, "Yard", "10.0.0.2");
    select(dialog, {0});
    child<QAction>(&dialog, "actionRemove")->trigger();
    QCOMPARE(names(dialog), QStringList("Yard"));
    QCOMPARE(m_host->db()->nodeIdList(AllNodeTypes).size(), 2);
}

void tst_NodeOverviewDialog::removeSelectedTakesWhatWasSelected()
{
    NodeOverviewDialog dialog;
    for (int i = 0; i < 6; ++i)
        m_host->add(IPDeviceType, QString("C%1").arg(i), QString("10.0.0.%1").arg(i));
    select(dialog, {0, 1, 3, 5});
    child<QAction>(&dialog, "actionRemove_selected")->trigger();
    QCOMPARE(names(dialog), QStringList({"C2", "C4"}));
    QCOMPARE(m_host->db()->nodeIdList(AllNodeTypes).size(), 6);
}

void tst_NodeOverviewDialog::removeAllAndNewNodes()
{
    NodeOverviewDialog dialog;
    m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    m_host->add(IPDeviceType, "Yard", "10.0.0.2");
    child<QAction>(&dialog, "actionRemove_all")->trigger();
    QVERIFY(names(dialog).isEmpty());
    QCOMPARE(m_host->db()->nodeIdList(AllNodeTypes).size(), 2);
    m_host->add(IPDeviceType, "Dock", "10.0.0.3");
    QCOMPARE(names(dialog), QStringList("Dock"));
}

void tst_NodeOverviewDialog::scanButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("scanner");
    QTest::newRow("mDNS") << "bonjourButton"
                          << "mDNS";
    QTest::newRow("ARP") << "arpButton"
                         << "ARP";
}

void tst_NodeOverviewDialog::scanButtons()
{
    QFETCH(QString, button);
    QFETCH(QString, scanner);
    NodeOverviewDialog dialog;
    dialog.show();
    auto* scan = child<QPushButton>(&dialog, qPrintable(button));
    QVERIFY(scan->isCheckable() && !scan->isChecked());
    QTest::mouseClick(scan, Qt::LeftButton);
    QTest::mouseClick(scan, Qt::LeftButton);
    QCOMPARE(m_db->calls,
             QStringList({QString("start %1 ffffffff -1").arg(scanner), QString("stop %1").arg(scanner)}));
}

void tst_NodeOverviewDialog::scannerOutlivesTheDialog()
{
    {
        NodeOverviewDialog dialog;
        child<QPushButton>(&dialog, "arpButton")->click();
    }
    QCOMPARE(m_db->calls, QStringList("start ARP ffffffff -1"));
}

void tst_NodeOverviewDialog::filterChangesNothing()
{
    NodeOverviewDialog dialog;
    dialog.show();
    m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    ModalAnswer answer([&](QDialog* filter) {
        QCOMPARE(filter->objectName(), QString("FilterDialog"));
        QCOMPARE(filter->windowTitle(), QString("Filter"));
        QCOMPARE(filter->size(), QSize(398, 213));
        auto* list = child<QListWidget>(filter, "listWidget");
        const NodeDB::TypeNames types = m_host->db()->readableNodeTypeNames(nullptr, true);
        QCOMPARE(list->count(), types.size());
        for (int row = 0; row < list->count(); ++row) {
            QCOMPARE(list->item(row)->text(), types.at(row).second);
            QCOMPARE(list->item(row)->checkState(), Qt::Checked);
            list->item(row)->setCheckState(Qt::Unchecked);
        }
        QTest::mouseClick(child<QPushButton>(filter, "okButton"), Qt::LeftButton);
        QCOMPARE(filter->result(), int(QDialog::Accepted));
    });
    QTest::mouseClick(child<QPushButton>(&dialog, "filterButton"), Qt::LeftButton);
    QVERIFY(answer.fired());
    QCOMPARE(names(dialog), QStringList("Gate"));
}

void tst_NodeOverviewDialog::selectedAfterOkAndCancel()
{
    NodeOverviewDialog dialog;
    dialog.show();
    QStringList ids;
    for (int i = 0; i < 4; ++i)
        ids.append(m_host->add(IPDeviceType, QString("C%1").arg(i), QString("10.0.0.%1").arg(i)));
    select(dialog, {2, 0, 3});
    const QModelIndexList rows = tree(dialog)->selectionModel()->selectedRows(0);
    QStringList expected;
    for (const QModelIndex& row : rows)
        expected.append(ids.at(row.row()));
    QTest::mouseClick(child<QPushButton>(&dialog, "okButton"), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.selected(), expected);
    QCOMPARE(dialog.selected().size(), 3);
    dialog.show();
    select(dialog, {1});
    QTest::mouseClick(child<QPushButton>(&dialog, "cancelButton"), Qt::LeftButton);
    QCOMPARE(dialog.selected(), expected);
}

void tst_NodeOverviewDialog::contextMenuOrderAndTexts()
{
    NodeOverviewDialog dialog;
    QCOMPARE(tree(dialog)->contextMenuPolicy(), Qt::ActionsContextMenu);
    QStringList texts;
    const QList<QAction*> actions = tree(dialog)->actions();
    for (const QAction* action : actions) {
        QCOMPARE(action->parent(), &dialog);
        texts.append(action->objectName() + ": " + action->text());
    }
    QCOMPARE(texts, QStringList({"actionSelect_all: Select all", "actionAdd: Add...", "actionEdit: Edit...",
                                 "actionRemove: Remove", "actionRemove_selected: Remove selected",
                                 "actionRemove_all: Remove all"}));
    m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    m_host->add(IPDeviceType, "Yard", "10.0.0.2");
    actions.first()->trigger();
    QCOMPARE(tree(dialog)->selectionModel()->selectedRows(0).size(), 2);
}

void tst_NodeOverviewDialog::form()
{
    NodeOverviewDialog dialog;
    QCOMPARE(dialog.objectName(), QString("NodeOverviewDialog"));
    QCOMPARE(QString(dialog.metaObject()->className()), QString("ko::NodeOverviewDialog"));
    QCOMPARE(dialog.windowTitle(), QString("Overview"));
    QCOMPARE(dialog.size(), QSize(542, 450));
    QCOMPARE(tree(dialog)->selectionMode(), QAbstractItemView::ExtendedSelection);
    QVERIFY(tree(dialog)->isSortingEnabled());
    const QList<QPair<const char*, const char*>> texts = {
        {"bonjourButton", "Bonjour scan"}, {"arpButton", "ARP scan"},      {"addButton", "Add ..."},
        {"editButton", "Edit ..."},        {"filterButton", "Filter ..."}, {"okButton", "OK"},
        {"cancelButton", "Cancel"}};
    for (const auto& text : texts)
        QCOMPARE(child<QPushButton>(&dialog, text.first)->text(), QString(text.second));
    QVERIFY(child<QPushButton>(&dialog, "okButton")->isDefault());
    QVERIFY(child<QPushButton>(&dialog, "okButton")->autoDefault());
    for (const char* slot : {"add()", "edit()", "remove()", "remove_selected()", "remove_all()", "filter()",
                             "selectionChanged()", "bonjourScan(bool)", "arpScan(bool)"})
        QVERIFY2(dialog.metaObject()->indexOfSlot(slot) >= 0, slot);
}

KO_TEST_MAIN(tst_NodeOverviewDialog)
#include "tst_nodeoverviewdialog.moc"
