#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/ProcessResources.h"
#include "support/Soak.h"
#include "support/TestMain.h"

#include "ImportReportDialog.h"
#include "MainWindow.h"
#include "NodeListModel.h"
#include "NodeListView.h"
#include "dialogs/GenericNodeViewer.h"
#include "dialogs/NodeDBViewer.h"
#include "dialogs/RecordingTransponderCustomSettingsDialog.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPixmapCache>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include <atomic>
#include <cstdio>

/// The toolkit's table of functions for debuggers: a version, the size, a version, then those that are called
/// with each QObject that comes and with each that goes.
extern quintptr Q_CORE_EXPORT qtHookData[];

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

namespace {

std::atomic<int> liveObjects{0};

void objectCame(QObject*)
{
    ++liveObjects;
}

void objectWent(QObject*)
{
    --liveObjects;
}

void countObjects()
{
    qtHookData[3] = reinterpret_cast<quintptr>(&objectCame);
    qtHookData[4] = reinterpret_cast<quintptr>(&objectWent);
}

struct Measure
{
    qint64 bytes;
    int objects;
    int widgets;
};

Measure measure()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    return {testsupport::heapInUse(), liveObjects, int(QApplication::allWidgets().size())};
}

/// Not through the test's log, which the platform plugin's warnings fill up.
void report(int round, const Measure& measure)
{
    std::printf("round %d: %lld bytes, %d objects, %d widgets\n", round, measure.bytes, measure.objects,
                measure.widgets);
    std::fflush(stdout);
}

void visitTabs(QDialog* dialog)
{
    auto* tabs = child<QTabWidget>(dialog, "tabWidget");
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        QCoreApplication::processEvents();
    }
}

void press(QDialog* dialog, QDialogButtonBox::StandardButton button)
{
    QTest::mouseClick(child<QDialogButtonBox>(dialog, "buttonBox")->button(button), Qt::LeftButton);
}

void show(QDialog* dialog)
{
    QCoreApplication::processEvents();
    dialog->reject();
}

} // namespace

/// Every window, opened, used and closed as often as in years of work.
class tst_Soak : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void nothingIsLeft();

private:
    void round(int number);
    void use(const char* action, const std::function<void(QDialog*)>& answer);
    void useNodes(int number);
    void useMany(int number);
    void useSettings();
    void useViewers();

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
    NodeListView* m_view = nullptr;
    QStringList m_nodes; ///< one of each type
    QStringList m_cameras;
};

void tst_Soak::initTestCase()
{
    countObjects();
    const int nodes = 10000;
    QPixmapCache::setCacheLimit(0); // it grows to 10 MiB and lets go by time
    m_host = std::make_unique<testsupport::HostFixture>();
    const QList<ENodeType> types = NodeTypes::all();
    for (const ENodeType type : types) {
        if (NodeTypes::canBeAdded(type))
            m_nodes.append(
                m_host->add(type, NodeTypes::readableName(type), QStringLiteral("one.example.org")));
    }
    for (int i = int(m_nodes.size()); i < nodes; ++i)
        m_cameras.append(
            m_host->add(IPDeviceType, QStringLiteral("Camera"), QStringLiteral("%1.example.org").arg(i)));
    for (const QString& id : std::as_const(m_cameras))
        m_host->change(id, [&id](Node* node) { node->setStringProperty("FactoryIP", "10_1_" + id); });
    QVERIFY(m_host->db()->flush());
    QCOMPARE(m_host->db()->summaries().size(), nodes);
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
    m_view = m_window->findChild<NodeListView*>();
}

void tst_Soak::cleanupTestCase()
{
    m_window.reset();
    m_host.reset();
}

void tst_Soak::use(const char* action, const std::function<void(QDialog*)>& answer)
{
    const ModalAnswer modal(answer);
    child<QAction>(m_window.get(), action)->trigger();
    QVERIFY2(modal.fired(), action);
}

/// One node is added, edited, shown and removed; then one of another type each time.
void tst_Soak::useNodes(int number)
{
    const int before = int(m_host->db()->summaries().size());
    use("actionAdd", [number](QDialog* dialog) {
        child<QLineEdit>(dialog, "nameLineEdit")->setText(QStringLiteral("New"));
        child<QLineEdit>(dialog, "addressLineEdit")
            ->setText(QStringLiteral("new%1.example.org").arg(number % 10));
        visitTabs(dialog);
        press(dialog, QDialogButtonBox::Ok);
    });
    QCOMPARE(int(m_host->db()->summaries().size()), before + 1);
    use("actionEdit", [](QDialog* dialog) {
        visitTabs(dialog);
        child<QLineEdit>(dialog, "nameLineEdit")->setText(QStringLiteral("Old"));
        press(dialog, QDialogButtonBox::Ok);
    });
    use("actionRemove", [](QDialog* dialog) {
        auto* box = qobject_cast<QMessageBox*>(dialog);
        const QList<QAbstractButton*> buttons = box->buttons();
        for (QAbstractButton* button : buttons) {
            if (box->buttonRole(button) != QMessageBox::RejectRole)
                button->click();
        }
    });
    QCOMPARE(int(m_host->db()->summaries().size()), before);
    QCoreApplication::processEvents();
    m_view->selectNode(m_nodes.at(number % m_nodes.size()));
    for (const char* action : {"actionEdit", "actionProperties"}) {
        use(action, [](QDialog* dialog) {
            visitTabs(dialog);
            dialog->reject();
        });
    }
}

void tst_Soak::useMany(int number)
{
    const QStringList some = m_cameras.mid(0, 40);
    m_view->selectNodes(some);
    QCOMPARE(m_view->selectedCount(), int(some.size()));
    use("actionCredentials", [number](QDialog* dialog) {
        child<QLineEdit>(dialog, "userNameLineEdit")->setText(QStringLiteral("user%1").arg(number % 10));
        child<QLineEdit>(dialog, "passWordLineEdit")->setText(QStringLiteral("word%1").arg(number % 10));
        dialog->accept();
    });
    const std::function<void(QDialog*)> viaCamera = [](QDialog* dialog) {
        child<QRadioButton>(dialog, "cameraRadioButton")->setChecked(true);
        dialog->accept();
    };
    use("actionRecording", viaCamera);
    m_view->selectNode(m_cameras.constFirst());
    use("actionRecording", show);
}

void tst_Soak::useSettings()
{
    for (const char* action : {"actionProxy", "actionEnvironments", "actionPreferences"})
        use(action, [](QDialog* dialog) {
            QCoreApplication::processEvents();
            dialog->accept();
        });
    use("actionOverview", [](QDialog* dialog) {
        const ModalAnswer filter(show);
        child<QPushButton>(dialog, "filterButton")->click();
        QVERIFY(filter.fired());
        dialog->reject();
    });
    for (const char* action : {"actionAddressChanges", "actionAuditLog", "actionAbout"})
        use(action, show);
}

void tst_Soak::useViewers()
{
    child<QAction>(m_window.get(), "actionDatabase")->trigger();
    QCoreApplication::processEvents();
    auto* viewer = m_window->findChild<NodeDBViewer*>();
    QVERIFY(viewer);
    viewer->close();

    auto* node = new GenericNodeViewer(m_nodes.constFirst(), nullptr);
    node->show();
    QCoreApplication::processEvents();
    delete node;
    RecordingTransponderCustomSettingsDialog preview(m_nodes.constLast(), m_window.get());
    CameraSurvey::ImportResult result;
    result.badLines.append({1, QStringLiteral("no address")});
    ImportReportDialog imported(result, m_window.get());
    for (QDialog* dialog : std::initializer_list<QDialog*>{&preview, &imported}) {
        dialog->show();
        show(dialog);
    }
}

void tst_Soak::round(int number)
{
    useNodes(number);
    useMany(number);
    useSettings();
    useViewers();
}

void tst_Soak::nothingIsLeft()
{
    const int rounds = testsupport::soakOr(1000, 40);
    const int warm = testsupport::soakOr(100, 20);
    Measure before = {};
    for (int number = 1; number <= rounds && !QTest::currentTestFailed(); ++number) {
        round(number);
        const Measure now = measure();
        if (number == warm)
            before = now;
        if (number == warm || number % 100 == 0)
            report(number, now);
    }
    const Measure after = measure();
    QCOMPARE(after.objects, before.objects);
    QCOMPARE(after.widgets, before.widgets);
    QVERIFY2(after.bytes <= before.bytes + before.bytes / 100,
             qPrintable(QStringLiteral("%1, then %2 bytes").arg(before.bytes).arg(after.bytes)));
    report(rounds, after);
}

KO_TEST_MAIN(tst_Soak)
#include "tst_soak.moc"
