#include "LastChangeColumn.h"
#include "MainWindow.h"
#include "NodeListModel.h"
#include "NodeListView.h"
#include "database/StoredHistory.h"
#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/ProcessResources.h"
#include "support/TestMain.h"

#include <QAction>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLineEdit>

using namespace ko;
using testsupport::child;

/// Columns of properties in the list, chosen in the menu of its header.
class tst_PropertyColumns : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void databaseGivesAColumn();
    void hiddenUntilChosen();
    void shownOnesAreSearched();
    void hiddenOneIsFoundByItsName();
    void sortedColumnStays();
    void changesAreShown();
    void lastChangeByWhom();
    void keptForTheNextStart();
    void manyNodes();

private:
    QString add(const QString& name, const QString& model, int port, bool ssl);
    void open();
    QAction* menu(const QString& title) const;
    int column(const QString& title) const;
    QString cell(const QString& id, const QString& title) const;
    QStringList found(const QString& search);
    bool m_hasSearched = false;

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
    NodeListView* m_list = nullptr;
    QStringList m_ids;
};

QString tst_PropertyColumns::add(const QString& name, const QString& model, int port, bool ssl)
{
    const kom::smart<NodeHint> hint = NodeTypes::driver(IPDeviceType)->createNodeHint(IPDeviceType);
    auto& device = dynamic_cast<NodeHintIPDevice&>(*hint);
    device.setName(name);
    device.address = name.toLower() + ".example";
    device.model = model;
    device.port = port;
    device.useSSL = ssl;
    device.user = "admin";
    device.macAddress = MACAddress(QString("02:00:00:00:00:%1").arg(m_ids.size() % 100, 2, 10, QChar('0')));
    return m_host->db()->add(device);
}

void tst_PropertyColumns::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_ids.clear();
    m_ids.append(add("Gate", "KS-10", 80, false));
    m_ids.append(add("Yard", "KS-9", 443, true));
    m_ids.append(m_host->add(ViewType, "View"));
    m_host->db()->flush();
    open();
}

void tst_PropertyColumns::cleanup()
{
    // The button that clears the search fades, and the toolkit loses its animation when the field goes
    // before.
    if (std::exchange(m_hasSearched, false))
        QTest::qWait(500);
    m_window.reset();
    m_host.reset();
}

void tst_PropertyColumns::open()
{
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
    m_list = &m_window->list();
}

QAction* tst_PropertyColumns::menu(const QString& title) const
{
    const QList<QAction*> actions = m_list->header()->actions();
    const auto action = std::find_if(actions.begin(), actions.end(),
                                     [&title](const QAction* action) { return action->text() == title; });
    return action == actions.end() ? nullptr : *action;
}

int tst_PropertyColumns::column(const QString& title) const
{
    for (int column = 0; column < m_list->model()->columnCount(); ++column) {
        if (m_list->model()->headerData(column, Qt::Horizontal).toString() == title)
            return column;
    }
    return -1;
}

QString tst_PropertyColumns::cell(const QString& id, const QString& title) const
{
    for (int row = 0; row < m_list->model()->rowCount(); ++row) {
        if (m_list->model()->index(row, 0).data(NodeListModel::NodeIdRole).toString() == id)
            return m_list->model()->index(row, column(title)).data().toString();
    }
    return QString("not there");
}

QStringList tst_PropertyColumns::found(const QString& search)
{
    m_hasSearched = true;
    child<QLineEdit>(m_window.get(), "searchLineEdit")->setText(search);
    QStringList names;
    for (int row = 0; row < m_list->model()->rowCount(); ++row)
        names.append(m_list->model()->index(row, 0).data().toString());
    return names;
}

/// What waits to be stored belongs to it.
void tst_PropertyColumns::databaseGivesAColumn()
{
    const QString removed = add("Dock", "KS-1", 80, false);
    m_host->db()->flush();
    m_host->change(m_ids.at(0), [](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setModel("new"); });
    m_host->db()->addNodeRelation(m_ids.at(2), m_ids.at(1), RecordingFolderRelation);
    m_host->db()->removeNode(removed);
    const QString added = add("Roof", "added", 80, false);
    for (const bool isStored : {false, true}) {
        QMap<QString, QString> models;
        m_host->db()->column("Model", [&models](const NodeID& id, const QVariant& value) {
            QVERIFY(!models.contains(id));
            models.insert(id, value.toString());
        });
        const QMap<QString, QString> wanted = {{m_ids.at(0), "new"}, {m_ids.at(1), "KS-9"}, {added, "added"}};
        QCOMPARE(models, wanted);
        if (!isStored)
            QVERIFY(m_host->db()->hasUnstoredChanges() && m_host->db()->flush());
    }
}

void tst_PropertyColumns::hiddenUntilChosen()
{
    const QStringList titles = {"Model", "Version", "MAC", "Port", "SSL", "User", "Channel"};
    for (const QString& title : titles) {
        QVERIFY2(m_list->isColumnHidden(column(title)), qPrintable(title));
        QCOMPARE(cell(m_ids.at(0), title), QString()); // nobody looks at it
        QVERIFY2(menu(title) && !menu(title)->isChecked(), qPrintable(title));
        menu(title)->trigger();
        QVERIFY(!m_list->isColumnHidden(column(title)));
    }
    const QMap<QString, QString> cells = {{"Model", "KS-9"}, {"MAC", "02:00:00:00:00:01"},
                                          {"Port", "443"},   {"SSL", "SSL"},
                                          {"User", "admin"}, {"Channel", ""}};
    for (auto wanted = cells.begin(); wanted != cells.end(); ++wanted)
        QCOMPARE(wanted.key() + cell(m_ids.at(1), wanted.key()), wanted.key() + wanted.value());
    QCOMPARE(cell(m_ids.at(0), "SSL"), QString());
    QCOMPARE(cell(m_ids.at(2), "Model"), QString());
    menu("Model")->trigger();
    QCOMPARE(cell(m_ids.at(1), "Model"), QString()); // and its memory is given back
}

void tst_PropertyColumns::shownOnesAreSearched()
{
    QCOMPARE(found("ks-10"), QStringList());
    menu("Model")->trigger();
    QCOMPARE(found("ks-10"), QStringList("Gate"));
    menu("SSL")->trigger();
    QCOMPARE(found("type:camera -ssl"), QStringList("Gate"));
    menu("SSL")->trigger();
    QCOMPARE(found("type:camera -ssl:ssl"), QStringList("Gate")); // named, so it is looked at
}

void tst_PropertyColumns::hiddenOneIsFoundByItsName()
{
    QCOMPARE(found("model:ks-9"), QStringList("Yard"));
    QCOMPARE(found("user:admin"), QStringList({"Gate", "Yard"}));
    QCOMPARE(found("port:443|80"), QStringList({"Gate", "Yard"}));
    QCOMPARE(found("mac:00:01"), QStringList("Yard"));
    QCOMPARE(found(""), QStringList({"Gate", "Yard", "View"})); // devices first
    QCOMPARE(cell(m_ids.at(1), "Model"), QString());
}

void tst_PropertyColumns::sortedColumnStays()
{
    menu("Model")->trigger();
    m_list->sortByColumn(column("Model"), Qt::AscendingOrder);
    QCOMPARE(found(""), QStringList({"View", "Yard", "Gate"})); // KS-9 before KS-10
    menu("Model")->trigger();
    QCOMPARE(found(""), QStringList({"View", "Yard", "Gate"}));
    m_list->sortByColumn(NodeListModel::NameColumn, Qt::AscendingOrder);
    QCOMPARE(cell(m_ids.at(1), "Model"), QString());
}

void tst_PropertyColumns::changesAreShown()
{
    menu("Model")->trigger();
    menu("Port")->trigger();
    m_host->change(m_ids.at(0), [](Node* node) {
        dynamic_cast<IPDeviceNode*>(node)->setModel("other");
        dynamic_cast<IPDeviceNode*>(node)->setPort(8080);
    });
    KO_TRY_COMPARE(cell(m_ids.at(0), "Model"), QString("other"));
    QCOMPARE(cell(m_ids.at(0), "Port"), QString("8080"));
    QCOMPARE(found("model:other"), QStringList("Gate"));
    found("");
    m_host->change(m_ids.at(0), [](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setModel(QString()); });
    KO_TRY_COMPARE(cell(m_ids.at(0), "Model"), QString());

    // One among many.
    QStringList more;
    for (int i = 0; i < 60; ++i)
        more.append(add(QString("Camera %1").arg(i), QString("M%1").arg(i), 80, false));
    KO_TRY_COMPARE(cell(more.last(), "Model"), QString("M59"));
    m_host->change(more.first(), [](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setModel("m0"); });
    KO_TRY_COMPARE(cell(more.first(), "Model"), QString("m0")); // which a search does not see
    m_host->db()->removeNode(more.first());
    KO_TRY_COMPARE(cell(more.first(), "Model"), QString("not there"));
}

/// Of the history, read when it is looked at, and followed from then on.
void tst_PropertyColumns::lastChangeByWhom()
{
    const auto known = [this](const QString& id) {
        const std::optional<ChangeSetRow> row = m_host->db()->history().row(m_host->db()->history().newest());
        return cell(id, "Last Change").startsWith(LastChangeColumn::text({id, row->cause.time, QString()}));
    };
    QCOMPARE(cell(m_ids.at(0), "Last Change"), QString());
    menu("Last Change")->trigger();
    for (const QString& id : std::as_const(m_ids))
        KO_TRY_VERIFY(cell(id, "Last Change").endsWith(", " + Cause::currentUser()));
    // What another did, long ago as it were.
    const QString old = LastChangeColumn::text({m_ids.at(1), 1000000000000, "anna"});
    auto* model = m_window->findChild<NodeListModel*>();
    model->setText(column("Last Change"), m_ids.at(1), old);
    model->apply({m_host->db()->summary(m_ids.at(1))}, {});
    QCOMPARE(cell(m_ids.at(1), "Last Change"), old);
    m_list->sortByColumn(column("Last Change"), Qt::AscendingOrder);
    QCOMPARE(found("").value(0), QString("Yard"));
    QCOMPARE(found("lastchange:anna"), QStringList("Yard"));
    found("");
    m_host->change(m_ids.at(1), [](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setModel("new"); });
    KO_TRY_VERIFY(known(m_ids.at(1)));
    menu("Last Change")->trigger();
    m_list->sortByColumn(NodeListModel::NameColumn, Qt::AscendingOrder);
    QCOMPARE(cell(m_ids.at(1), "Last Change"), QString());
}

void tst_PropertyColumns::keptForTheNextStart()
{
    menu("User")->trigger();
    m_list->header()->resizeSection(column("User"), 77);
    m_window->close();
    open();
    QVERIFY(menu("User")->isChecked() && !menu("Model")->isChecked());
    QCOMPARE(m_list->header()->sectionSize(column("User")), 77);
    QCOMPARE(cell(m_ids.at(0), "User"), QString("admin"));
    menu("User")->trigger();
    m_window->close(); // what it keeps is for the next test too
}

/// KO_NODES sets how many.
void tst_PropertyColumns::manyNodes()
{
    const int count = qMax(2000, qEnvironmentVariableIntValue("KO_NODES"));
    m_window.reset();
    for (int i = 0; i < count; ++i)
        add(QString("Camera %1").arg(i), QString("KS-%1").arg(i % 20), 80, false);
    QVERIFY(m_host->db()->flush());
    m_host->reopen();
    open();
    QTest::qWait(count / 20); // until the list is ready for a search
    for (const char* title : {"Model", "MAC"}) {
        const qint64 before = testsupport::heapInUse();
        QElapsedTimer clock;
        clock.start();
        menu(title)->trigger();
        const qint64 shown = clock.elapsed();
        qInfo("%s of %d nodes: %lld ms, %lld KiB", title, count, shown,
              (testsupport::heapInUse() - before) / 1024);
        QVERIFY2(shown < 250 + count / 50, qPrintable(QString::number(shown)));
    }
    QCOMPARE(found("model:ks-7 name:\"camera 27\"").value(0), QString("Camera 27"));
}

KO_TEST_MAIN(tst_PropertyColumns)
#include "tst_propertycolumns.moc"
