#include "WindowFixture.h"
#include "database/StoredHistory.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "CameraState.h"
#include "Places.h"

#include <QDockWidget>
#include <QSettings>
#include <QTextBrowser>

using namespace ko;
using testsupport::child;

/// What stands beside the list of the node that is selected, or of several.
class tst_Details : public QObject, private testsupport::WindowFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { closeWindow(); }

    void hiddenAtFirst();
    void keptForTheNextStart();
    void ofOneNode();
    void ofSeveral();
    void followsWhatChanges();
    void namesAreNoMarkup();

private:
    QString text() const { return child<QTextBrowser>(m_window.get(), "detailsTextBrowser")->toPlainText(); }
    QAction* action() const { return child<QAction>(m_window.get(), "actionDetails"); }
    bool shows(const QString& title, const QString& value) const;
};

void tst_Details::init()
{
    QSettings().clear();
    Places::declare();
    openWindow();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

/// The lines of a table come as one paragraph for each cell.
bool tst_Details::shows(const QString& title, const QString& value) const
{
    QStringList cells = text().split('\n', Qt::SkipEmptyParts);
    for (QString& cell : cells)
        cell = cell.trimmed();
    const int at = int(cells.indexOf(title));
    return at >= 0 && cells.value(at + 1) == value;
}

void tst_Details::hiddenAtFirst()
{
    QVERIFY(!child<QDockWidget>(m_window.get(), "detailsDock")->isVisible());
    QVERIFY(!action()->isChecked());
    select({"Yard"});
    QTest::qWait(200);
    QVERIFY(!text().contains("Yard")); // and reads nothing
    action()->trigger();
    KO_TRY_VERIFY(text().contains("Yard"));
}

void tst_Details::keptForTheNextStart()
{
    action()->trigger();
    m_window->close();
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
    m_view = m_window->findChild<NodeListView*>();
    QVERIFY(child<QDockWidget>(m_window.get(), "detailsDock")->isVisible());
    select({"Yard"});
    KO_TRY_VERIFY(text().contains("Yard"));
    action()->trigger();
    m_window->close();
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
    QVERIFY(!child<QDockWidget>(m_window.get(), "detailsDock")->isVisible());
}

void tst_Details::ofOneNode()
{
    m_host->change(idOf("Gate north"), [](Node* node) {
        dynamic_cast<IPDeviceNode*>(node)->setModel("KS-9");
        node->setStringProperty(Places::Location, "North/Floor 1");
    });
    m_host->db()->flush();
    action()->trigger();
    KO_TRY_VERIFY(text().contains("Select a node"));
    select({"Gate north"});
    KO_TRY_VERIFY(shows("Name", "Gate north"));
    QVERIFY2(shows("Type", "IP Camera") && shows("Address", "10.0.0.1"), qPrintable(text()));
    QVERIFY2(shows("Model", "KS-9") && shows("Location", "North/Floor 1"), qPrintable(text()));
    QVERIFY2(shows("State", "Not checked"), qPrintable(text()));
    const ChangeSetRow row = *m_host->db()->history().row(m_host->db()->history().newest());
    const QString time = QDateTime::fromMSecsSinceEpoch(row.cause.time).toString("yyyy-MM-dd HH:mm");
    QVERIFY2(shows("Last Change", time + ", " + Cause::currentUser()), qPrintable(text()));
    QVERIFY2(text().contains("Properties of Gate north"), qPrintable(text()));
    QVERIFY2(!text().contains("Tags"), qPrintable(text())); // there are none
}

void tst_Details::ofSeveral()
{
    action()->trigger();
    select({"Gate north", "Gate south"});
    KO_TRY_VERIFY(text().contains("2 node"));
    QVERIFY2(shows("Name", "different") && shows("Address", "different"), qPrintable(text()));
    QVERIFY2(shows("Type", "IP Camera") && shows("Port", "80"), qPrintable(text()));
}

void tst_Details::followsWhatChanges()
{
    action()->trigger();
    select({"Gate north"});
    KO_TRY_VERIFY(shows("Name", "Gate north"));
    m_host->change(idOf("Gate north"), [](Node* node) { node->setStringProperty("Name", "Gate east"); });
    KO_TRY_VERIFY(shows("Name", "Gate east"));
    CameraState state;
    state.state = DeviceReport::WrongPassword;
    m_window->findChild<NodeListModel*>()->setStates({{idOf("Gate east"), state}});
    KO_TRY_VERIFY(shows("State", CameraStates::text(state.state)));
    m_host->db()->removeNode(idOf("Gate east"));
    KO_TRY_VERIFY(text().contains("Select a node"));
}

void tst_Details::namesAreNoMarkup()
{
    m_host->add(IPDeviceType, "<b>Gate</b> & <img src=x>", "10.0.0.9");
    m_window->applyChanges();
    action()->trigger();
    select({"<b>Gate</b> & <img src=x>"});
    KO_TRY_VERIFY(shows("Name", "<b>Gate</b> & <img src=x>"));
}

KO_TEST_MAIN(tst_Details)
#include "tst_details.moc"
