#include "CameraChecking.h"
#include "CheckReportDialog.h"
#include "Languages.h"
#include "MainWindow.h"
#include "NodeListView.h"
#include "audit/AuditLog.h"
#include "audit/AuditRecord.h"
#include "database/StoredHistory.h"
#include "devices/KnownDevice.h"
#include "support/Answers.h"
#include "support/DialogCheck.h"
#include "support/ModalAnswer.h"
#include "support/OwnTimer.h"
#include "support/Patience.h"
#include "support/ProcessResources.h"
#include "support/SiteCameras.h"
#include "support/TestMain.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>
#include <QTcpServer>
#include <QTcpSocket>

#include <ctime>

using namespace ko;
using testsupport::Answers;
using testsupport::child;
using testsupport::ModalAnswer;
using testsupport::Patience;
using testsupport::SimulatedSite;
using testsupport::Slowness;

namespace {

/// A heart that beats in the event loop, while this object lives.
class LoopWatch
{
public:
    LoopWatch()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { beat(); });
        m_clock.start();
        m_timer.start(Beat);
    }

    double longest() const { return most(m_late); }

    /// The same without what the machine does meanwhile.
    double longestWork() const { return most(m_work); }

    /// ms that 99 of a hundred who come at any time wait at most.
    double wait() const { return percentile(m_late); }

    /// ms of work in 99 of a hundred beats at most, whatever else the machine does.
    double work() const { return percentile(m_work); }

private:
    static constexpr int Beat = 4; // ms

    static double worked()
    {
        timespec time = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
    }

    static double most(const std::vector<double>& values)
    {
        return values.empty() ? 0 : *std::max_element(values.begin(), values.end());
    }

    static double percentile(std::vector<double> values)
    {
        std::sort(values.begin(), values.end());
        return values.empty() ? 0 : values.at((values.size() - 1) * 99 / 100);
    }

    void beat()
    {
        // Who comes in the middle of a stop waits for the rest of it.
        for (double late = double(m_clock.nsecsElapsed()) / 1e6 - Beat; late > -Beat; late -= Beat)
            m_late.push_back(qMax(0.0, late));
        m_work.push_back(worked() - std::exchange(m_worked, worked()));
        m_clock.start();
    }

    QElapsedTimer m_clock;
    QTimer m_timer;
    double m_worked = worked();
    std::vector<double> m_late;
    std::vector<double> m_work;
};

/// A device that does not answer before it is released, and then hangs up.
class HeldDevice : public QTcpServer
{
public:
    HeldDevice() { listen(QHostAddress::LocalHost); }

    bool isAsked() const { return hasPendingConnections(); }
    void release()
    {
        close();
        while (QTcpSocket* socket = nextPendingConnection())
            socket->abort();
    }
};

} // namespace

/// Cameras of a simulated site, checked as the user of the main window does it.
class tst_CameraCheck : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyKindOfCamera();
    void reportIsActedOn();
    void identityIsRememberedOnce();
    void otherDeviceIsAccepted();
    void clearPasswordIsAllowed();
    void changedCameraIsNotChecked();
    void removedMeanwhile();
    void cancelled();
    void cancelledAtOnce();
    void closingCancels();
    void oneCameraHasNoReport();
    void nothingToCheck();
    void credentialsAreTriedOnce();
    void passwordThatCannotBeReadIsNotTried();
    void manyAreChecked();
    void statesAreExported();
    void roomForLongTexts();
    void lineHasRoomBesideBusyScanners();

private:
    QStringList addCameras(const SimulatedSite& site, int count)
    {
        return testsupport::addCameras(*m_host, site, count);
    }
    QString refusedQuestion(const char* name);
    QString addHeld(const HeldDevice& device);
    void open();
    void check(const QStringList& ids = QStringList());
    QAction* action(const char* name) const { return child<QAction>(m_window.get(), name); }
    QWidget* panel() const { return child<QWidget>(m_window.get(), "checkPanel"); }
    QString line() const { return child<QLabel>(m_window.get(), "checkLabel")->text(); }
    void press(const char* button) { child<QPushButton>(m_window.get(), button)->click(); }
    CheckReportDialog* report() const { return m_window->findChild<CheckReportDialog*>(); }
    QString state(const QString& id) const;
    DeviceIdentity identity(const QString& id) const { return KnownDevice::of(*m_host->db()->node(id)); }
    int changeSets(Purpose purpose);
    void setPassword(const QString& id, const QString& password);

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
    NodeListView* m_list = nullptr;
};

void tst_CameraCheck::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
}

void tst_CameraCheck::cleanup()
{
    m_window.reset();
    m_host.reset();
}

QString tst_CameraCheck::refusedQuestion(const char* name)
{
    QString text;
    const ModalAnswer answer([&text](QDialog* dialog) {
        text = qobject_cast<QMessageBox*>(dialog)->text();
        QTest::keyClick(dialog, Qt::Key_Return); // means Cancel
    });
    action(name)->trigger();
    return text;
}

QString tst_CameraCheck::addHeld(const HeldDevice& device)
{
    const QString id = m_host->add(IPDeviceType, "Held", "127.0.0.1");
    m_host->change(id, [&](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setPort(device.serverPort()); });
    return id;
}

void tst_CameraCheck::open()
{
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
    m_list = &m_window->list();
    QVERIFY(!panel()->isVisible());
}

void tst_CameraCheck::check(const QStringList& ids)
{
    m_list->clearSelection();
    m_list->selectNodes(ids);
    action("actionCheck")->trigger();
    QVERIFY(panel()->isVisible());
    KO_TRY_VERIFY(!child<QProgressBar>(m_window.get(), "checkProgressBar")->isVisible());
}

QString tst_CameraCheck::state(const QString& id) const
{
    const auto* model = m_list->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        if (model->index(row, 0).data(NodeListModel::NodeIdRole).toString() == id)
            return model->index(row, NodeListModel::StateColumn).data().toString();
    }
    return QString("not in the list");
}

int tst_CameraCheck::changeSets(Purpose purpose)
{
    QSet<QString> ids;
    const QVector<ChangeSet> sets = m_host->db()->history().changeSets(0, 10000);
    for (const ChangeSet& set : sets) {
        if (set.cause.purpose == purpose)
            ids.insert(set.cause.id);
    }
    return int(ids.size());
}

void tst_CameraCheck::setPassword(const QString& id, const QString& password)
{
    m_host->change(id, [&](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setUser("admin", password); });
}

void tst_CameraCheck::everyKindOfCamera()
{
    const struct
    {
        QString kind;
        QString state;
    } cameras[] = {
        {"digest", "Answers"},
        {"token", "Answers"},
        {"clock", "Answers"},
        {"open", "Answers"},
        {"basic", "Wants a clear password"},
        {"locks", "Answers"},
        {"slow", "Answers"},
        {"foreign", "Answers"},
        {"lying", "Answers"},
        {"silent", "No answer"},
        {"broken", "Not understood"},
        {"web", "Not understood"},
        {"bomb", "Not understood"},
        {"tag", "Not understood"},
        {"endless", "Not understood"},
        {"redirect", "Not understood"},
    };
    QStringList kinds;
    for (const auto& camera : cameras)
        kinds.append(camera.kind);
    const SimulatedSite site({"--cameras", QString::number(kinds.size()), "--onvif", kinds.join(',')});
    QVERIFY(site.isUp);
    const QStringList ids = addCameras(site, int(kinds.size()));
    setPassword(ids.at(1), "wrong");
    const QString view = m_host->add(ViewType, "View");
    const QString nowhere = m_host->add(IPDeviceType, "Nowhere");
    open();
    for (const QString& id : ids)
        QCOMPARE(state(id), QString("Not checked"));
    QCOMPARE(state(view), QString());

    LoopWatch watch;
    check(); // nothing is selected: all
    for (int i = 0; i < ids.size(); ++i)
        QCOMPARE(kinds.at(i) + ": " + state(ids.at(i)),
                 kinds.at(i) + ": " + (i == 1 ? QString("Wrong password") : cameras[i].state));
    QCOMPARE(state(view), QString());
    QCOMPARE(state(nowhere), QString());
    QVERIFY2(watch.longestWork() < 250 * Slowness, qPrintable(QString::number(watch.longestWork())));

    QVERIFY(report() && report()->isVisible() && !report()->isModal());
    const QString summary = child<QLabel>(report(), "summaryLabel")->text();
    for (const char* part : {"Answers: 7", "Wrong password: 1", "No answer: 1", "Not understood: 6",
                             "Wants a clear password: 1", "2 node"})
        QVERIFY2(summary.contains(QLatin1String(part)), qPrintable(summary));
    const auto* table = child<QTableView>(report(), "camerasTableView")->model();
    QCOMPARE(table->rowCount(), 9);
    QCOMPARE(table->index(0, 2).data().toString(), QString("Wrong password")); // the worst comes first
    QVERIFY(line().startsWith("7 of 16 cameras answer"));
}

/// Show, copy, save; what a spreadsheet would take for a formula is none.
void tst_CameraCheck::reportIsActedOn()
{
    const SimulatedSite site({"--cameras", "4", "--onvif", "digest,web"});
    QVERIFY(site.isUp);
    const QStringList ids = addCameras(site, 4);
    m_host->change(ids.at(1), [](Node* node) { node->setStringProperty("Name", "=1+1\tx"); });
    open();
    check();
    child<QLineEdit>(m_window.get(), "searchLineEdit")->setText("nothing like this");
    child<QPushButton>(report(), "showButton")->click();
    QCOMPARE(child<QLineEdit>(m_window.get(), "searchLineEdit")->text(), QString("state:\"Not understood\""));
    QCOMPARE(m_list->model()->rowCount(), 2);
    QStringList shown = m_list->selectedIds();
    shown.sort();
    QStringList troubled = {ids.at(1), ids.at(3)};
    troubled.sort();
    QCOMPARE(shown, troubled);

    child<QPushButton>(report(), "copyButton")->click();
    QStringList lines = QApplication::clipboard()->text().split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines.at(1).startsWith("'=1+1 x\t127.0.1.2\tNot understood\t"), qPrintable(lines.at(1)));

    child<QCheckBox>(report(), "allCheckBox")->click();
    QTemporaryDir folder;
    const QString file = folder.filePath("report.csv");
    {
        const ModalAnswer answer([&file](QDialog* dialog) {
            qobject_cast<QFileDialog*>(dialog)->selectFile(file);
            dialog->accept();
        });
        child<QPushButton>(report(), "saveButton")->click();
        QVERIFY(answer.fired());
    }
    QFile written(file);
    QVERIFY(written.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(written.readAll());
    QCOMPARE(text.count("\r\n"), 5);
    QVERIFY2(text.contains("\n\"'=1+1\tx\",127.0.1.2,Not understood,"), qPrintable(text));
    QVERIFY2(text.contains("Camera 1,127.0.1.1,Answers,"), qPrintable(text));

    // What cannot be written is said.
    QString complaint;
    const Answers answers({[](QDialog* dialog) {
                               qobject_cast<QFileDialog*>(dialog)->selectFile("/proc/nowhere.csv");
                               dialog->accept();
                           },
                           [&complaint](QDialog* dialog) {
                               complaint = qobject_cast<QMessageBox*>(dialog)->text();
                               dialog->reject();
                           }});
    child<QPushButton>(report(), "saveButton")->click();
    QVERIFY2(complaint.contains("/proc/nowhere.csv"), qPrintable(complaint));
}

void tst_CameraCheck::identityIsRememberedOnce()
{
    const SimulatedSite site({"--cameras", "4", "--onvif", "digest,token,web,digest"});
    QVERIFY(site.isUp);
    const QStringList ids = addCameras(site, 4);
    setPassword(ids.at(3), "wrong");
    open();
    check();
    QCOMPARE(identity(ids.at(0)).serial, QString("KS000001"));
    QVERIFY(!identity(ids.at(0)).realm.isEmpty());
    QCOMPARE(identity(ids.at(1)).endpoint, QString("6b6f7369-6d00-4000-8000-000000000002"));
    for (const int other : {2, 3}) // who did not take the password is not believed
        QVERIFY(identity(ids.at(other)).realm.isEmpty() && identity(ids.at(other)).serial.isEmpty());
    QCOMPARE(changeSets(Purpose::Check), 1);
    check();
    QCOMPARE(changeSets(Purpose::Check), 1); // nothing is new
    QCOMPARE(state(ids.at(0)), QString("Answers"));
}

void tst_CameraCheck::otherDeviceIsAccepted()
{
    const SimulatedSite site({"--cameras", "2", "--onvif", "lying,digest"});
    QVERIFY(site.isUp);
    const QStringList ids = addCameras(site, 2);
    open();
    check();
    const QString first = identity(ids.at(0)).serial;
    QVERIFY(!first.isEmpty());
    check();
    QCOMPARE(state(ids.at(0)), QString("Another device than before"));
    QCOMPARE(identity(ids.at(0)).serial, first); // only the user may replace it

    m_list->selectNodes({ids.at(1)});
    action("actionAcceptDevices")->trigger(); // no question: there is nothing to accept
    QVERIFY(m_window->statusBar()->currentMessage().contains("another device"));

    m_list->selectNodes(ids);
    const QString text = refusedQuestion("actionAcceptDevices");
    QVERIFY2(text.contains("Camera 1") && !text.contains("Camera 2"), qPrintable(text));
    QCOMPARE(identity(ids.at(0)).serial, first);
    {
        const ModalAnswer answer(ModalAnswer::press("Accept"));
        action("actionAcceptDevices")->trigger();
    }
    QVERIFY(identity(ids.at(0)).serial != first);
    QCOMPARE(state(ids.at(0)), QString("Not checked"));
    QVERIFY(m_host->db()->flush());
    const auto records = m_host->db()->auditLog().entries(0, 100, false);
    QVERIFY(std::any_of(records.begin(), records.end(), [](const AuditRecord& record) {
        return record.code.toString() == "NAcc" && record.entry->text().contains("Camera 1");
    }));
    QVERIFY2(line().contains("1 device"), qPrintable(line()));
    press("checkButton"); // "Check Them"
    KO_TRY_VERIFY(!panel()->isVisible());
    QCOMPARE(state(ids.at(0)), QString("Another device than before")); // it lies each time
}

void tst_CameraCheck::clearPasswordIsAllowed()
{
    const SimulatedSite site({"--cameras", "3", "--onvif", "basic,digest,basic"});
    QVERIFY(site.isUp);
    const QStringList ids = addCameras(site, 3);
    open();
    check();
    m_list->selectNodes({ids.at(1)});
    action("actionAllowClearPasswords")->trigger(); // no question: it has a better way
    QVERIFY(m_window->statusBar()->currentMessage().contains("clear password"));

    m_list->selectNodes(ids.mid(0, 2));
    const QString text = refusedQuestion("actionAllowClearPasswords");
    QVERIFY2(text.contains("Camera 1") && !text.contains("Camera 2"), qPrintable(text));
    check();
    QCOMPARE(state(ids.at(0)), QString("Wants a clear password"));
    {
        m_list->selectNodes(ids.mid(0, 2));
        const ModalAnswer answer(ModalAnswer::press("Allow"));
        action("actionAllowClearPasswords")->trigger();
        QVERIFY(answer.fired());
    }
    QVERIFY(m_host->db()->flush());
    const auto records = m_host->db()->auditLog().entries(0, 100, false);
    QCOMPARE(std::count_if(records.begin(), records.end(),
                           [](const AuditRecord& record) {
                               return record.code.toString() == "NClr" &&
                                      record.entry->text().contains("Camera 1");
                           }),
             1);
    check();
    QCOMPARE(state(ids.at(0)), QString("Answers"));
    QCOMPARE(state(ids.at(2)), QString("Wants a clear password")); // for that node alone

    // What answers at another place has not been allowed anything.
    m_host->change(ids.at(0), [](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setAddress("127.0.1.3"); });
    m_host->change(ids.at(0), [](Node* node) { KnownDevice::replace(*node, DeviceIdentity()); });
    check({ids.at(0)});
    QCOMPARE(state(ids.at(0)), QString("Wants a clear password"));
}

void tst_CameraCheck::changedCameraIsNotChecked()
{
    const SimulatedSite site({"--cameras", "2", "--onvif", "digest"});
    QVERIFY(site.isUp);
    const QStringList ids = addCameras(site, 2);
    HeldDevice held;
    const QString waiting = addHeld(held);
    open();
    check(ids);
    QCOMPARE(state(ids.at(0)), QString("Answers"));
    m_host->change(ids.at(0), [](Node* node) { node->setStringProperty("Name", "Renamed"); });
    QTest::qWait(50);
    QCOMPARE(state(ids.at(0)), QString("Answers")); // the device is the same
    setPassword(ids.at(0), "other");
    m_host->change(ids.at(1), [](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setAddress("127.0.0.9"); });
    KO_TRY_COMPARE(state(ids.at(0)), QString("Not checked"));
    KO_TRY_COMPARE(state(ids.at(1)), QString("Not checked"));

    // While it is under way: what comes is of the password before.
    m_list->selectNodes({waiting});
    action("actionCheck")->trigger();
    KO_TRY_VERIFY(held.isAsked());
    setPassword(waiting, "other");
    QTest::qWait(50);
    held.release();
    KO_TRY_VERIFY(!panel()->isVisible());
    QCOMPARE(state(waiting), QString("Not checked")); // and not "No answer"
    QVERIFY(m_window->statusBar()->currentMessage().contains("changed while"));
}

void tst_CameraCheck::removedMeanwhile()
{
    const SimulatedSite site({"--cameras", "1", "--onvif", "digest"});
    QVERIFY(site.isUp);
    HeldDevice held;
    const QStringList ids = addCameras(site, 1) + QStringList(addHeld(held));
    open();
    action("actionCheck")->trigger();
    KO_TRY_COMPARE(state(ids.at(0)), QString("Answers"));
    KO_TRY_VERIFY(held.isAsked());
    for (const QString& id : ids)
        m_host->db()->removeNode(id);
    held.release();
    KO_TRY_VERIFY(!child<QProgressBar>(m_window.get(), "checkProgressBar")->isVisible());
    QCOMPARE(m_list->model()->rowCount(), 0);
    QVERIFY(!report());

    HeldDevice other;
    const QString only = addHeld(other);
    KO_TRY_COMPARE(m_list->model()->rowCount(), 1);
    action("actionCheck")->trigger();
    KO_TRY_VERIFY(other.isAsked());
    m_host->db()->removeNode(only);
    other.release();
    KO_TRY_VERIFY(!panel()->isVisible());
}

void tst_CameraCheck::cancelled()
{
    const SimulatedSite site({"--cameras", "40", "--onvif", "digest,silent"});
    QVERIFY(site.isUp);
    const QStringList ids = addCameras(site, 40);
    open();
    action("actionCheck")->trigger();
    KO_TRY_COMPARE(state(ids.at(0)), QString("Answers"));
    action("actionCheck")->trigger(); // a second one waits for nobody
    QVERIFY(m_window->statusBar()->currentMessage().contains("already"));
    const testsupport::OwnTimer clock;
    press("checkCancelButton");
    QVERIFY(clock.elapsed() < 200);
    QVERIFY2(line().contains("cancelled"), qPrintable(line()));
    QVERIFY(!report()); // nobody waits for one
    QCOMPARE(state(ids.at(1)), QString("Not checked"));
    QCOMPARE(state(ids.at(0)), QString("Answers"));
    press("checkButton");
    QVERIFY(report());
    check(ids.mid(0, 1)); // again
    QCOMPARE(state(ids.at(0)), QString("Answers"));
}

void tst_CameraCheck::cancelledAtOnce()
{
    const SimulatedSite site({"--cameras", "2", "--onvif", "digest"});
    QVERIFY(site.isUp);
    const QStringList ids = addCameras(site, 2);
    open();
    action("actionCheck")->trigger();
    press("checkCancelButton");
    QVERIFY(!panel()->isVisible());
    QVERIFY(m_window->statusBar()->currentMessage().contains("cancelled"));
    QTest::qWait(200);
    QVERIFY(!report() && !panel()->isVisible());
    for (const QString& id : ids)
        QCOMPARE(state(id), QString("Not checked"));
    check(ids);
    QCOMPARE(state(ids.at(0)), QString("Answers"));
}

void tst_CameraCheck::closingCancels()
{
    const SimulatedSite site({"--cameras", "8", "--onvif", "silent"});
    QVERIFY(site.isUp);
    addCameras(site, 8);
    open();
    action("actionCheck")->trigger();
    QTest::qWait(200);
    const testsupport::OwnTimer clock;
    m_window->close();
    QVERIFY(!panel()->isVisible() || line().contains("cancelled"));
    m_window.reset();
    QVERIFY(clock.elapsed() < 1000);
}

void tst_CameraCheck::oneCameraHasNoReport()
{
    const SimulatedSite site({"--cameras", "1", "--onvif", "web"});
    QVERIFY(site.isUp);
    const QStringList ids = addCameras(site, 1);
    open();
    check(ids);
    QVERIFY(!report() && !panel()->isVisible());
    QVERIFY2(m_window->statusBar()->currentMessage().startsWith("Camera 1: Not understood ("),
             qPrintable(m_window->statusBar()->currentMessage()));
}

void tst_CameraCheck::nothingToCheck()
{
    const QString view = m_host->add(ViewType, "View");
    open();
    for (const QStringList& selected : {QStringList(), QStringList(view)}) {
        m_window->say(QString());
        m_list->selectNodes(selected);
        action("actionCheck")->trigger();
        QVERIFY(m_window->statusBar()->currentMessage().contains("no camera"));
        QVERIFY(!panel()->isVisible());
    }
}

/// A camera that locks the account after three wrong passwords shows how often it is tried.
void tst_CameraCheck::credentialsAreTriedOnce()
{
    const SimulatedSite site({"--cameras", "2", "--onvif", "locks"});
    QVERIFY(site.isUp);
    const QStringList ids = addCameras(site, 2);
    open();
    const auto give = [&](const QString& password) {
        m_list->selectNodes(ids);
        const ModalAnswer answer([&password](QDialog* dialog) {
            child<QLineEdit>(dialog, "passWordLineEdit")->setText(password);
            dialog->accept();
        });
        action("actionCredentials")->trigger();
        QVERIFY(answer.fired());
        QVERIFY(panel()->isVisible());
        QVERIFY2(line().contains("2 device"), qPrintable(line()));
    };
    for (int i = 0; i < 3; ++i) {
        give(QString("wrong %1").arg(i));
        press("checkButton"); // "Try It"
        KO_TRY_VERIFY(report());
        QCOMPARE(state(ids.at(0)), QString("Wrong password"));
        QVERIFY2(line().startsWith("0 of 2 cameras took the password"), qPrintable(line()));
        // Of a try all cameras are listed.
        QCOMPARE(child<QTableView>(report(), "camerasTableView")->model()->rowCount(), 2);
        delete report();
    }
    give("kosim-pass");
    press("checkButton");
    KO_TRY_VERIFY(report());
    QCOMPARE(state(ids.at(1)), QString("Locked out"));

    // One that wants none has not taken it.
    const SimulatedSite open({"--cameras", "2", "--onvif", "open,digest"});
    QVERIFY(open.isUp);
    for (const QString& id : ids)
        m_host->change(id, [&](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setPort(open.port); });
    delete report();
    give("kosim-pass");
    press("checkButton");
    KO_TRY_VERIFY(report());
    QVERIFY2(line().startsWith("1 of 2 cameras took the password"), qPrintable(line()));
    QVERIFY(child<QTableView>(report(), "camerasTableView")
                ->model()
                ->index(0, 3)
                .data()
                .toString()
                .contains("no password"));

    // It is only an offer.
    delete report();
    give("kosim-pass");
    child<QWidget>(m_window.get(), "checkCloseButton")->setFocus();
    QTest::mouseClick(child<QWidget>(m_window.get(), "checkCloseButton"), Qt::LeftButton);
    QVERIFY(!panel()->isVisible());
    QTest::qWait(300);
    QVERIFY(!report());
}

void tst_CameraCheck::passwordThatCannotBeReadIsNotTried()
{
    const SimulatedSite site({"--cameras", "2", "--onvif", "digest"});
    QVERIFY(site.isUp);
    const QStringList ids = addCameras(site, 2);
    // As if it were sealed for another node: the change of one, put into the other.
    QVector<ChangeSet> sets = m_host->db()->history().changeSets(0, 1000);
    QString sealed;
    for (const ChangeSet& set : std::as_const(sets)) {
        for (const NodeChange& change : set.nodes) {
            if (change.id == ids.at(1) && change.after)
                sealed = change.after->properties.value("Password").toString();
        }
    }
    QVERIFY(!sealed.isEmpty());
    ChangeSet foreign;
    foreign.cause = Cause::now(Purpose::Edit);
    NodeChange change;
    change.id = ids.at(0);
    change.type = IPDeviceType;
    change.before = NodeValues();
    change.after = NodeValues();
    change.before->name = change.after->name = "Camera 1";
    change.after->properties.set("Password", sealed);
    foreign.nodes.append(change);
    QVERIFY(m_host->db()->apply(foreign));
    open();
    {
        const ModalAnswer notice([](QDialog* dialog) { dialog->reject(); }); // of what could not be read
        m_host->db()->node(ids.at(0))->stringProperty("Password", QString());
        KO_TRY_VERIFY(notice.fired());
    }
    check();
    QCOMPARE(state(ids.at(0)), QString("Not checked"));
    QCOMPARE(state(ids.at(1)), QString("Answers"));
    const auto* table = child<QTableView>(report(), "camerasTableView")->model();
    QCOMPARE(table->rowCount(), 1);
    QVERIFY(table->index(0, 3).data().toString().contains("cannot be read"));
}

/// KO_CHECKS sets how many.
void tst_CameraCheck::manyAreChecked()
{
    const int count = qMax(300, qEnvironmentVariableIntValue("KO_CHECKS"));
    const SimulatedSite site({"--cameras", QString::number(count), "--onvif", "digest,token,clock,digest",
                              "--hostile-every", "100"});
    QVERIFY(site.isUp);
    addCameras(site, count);
    open();
    // The dearest case: the list is in the order of what changes.
    m_list->sortByColumn(NodeListModel::StateColumn, Qt::AscendingOrder);
    QTest::qWait(500);
    const qint64 before = testsupport::heapInUse();
    QElapsedTimer clock;
    clock.start();
    LoopWatch watch;
    action("actionCheck")->trigger();
    QTRY_VERIFY_WITH_TIMEOUT(report(), Patience * 10);
    qInfo("%d cameras in %lld ms; 99 of 100 wait %.1f ms at most, for %.1f ms of work; longest stop %.1f ms, "
          "heap %+lld KiB",
          count, clock.elapsed(), watch.wait(), watch.work(), watch.longest(),
          (testsupport::heapInUse() - before) / 1024);
    QVERIFY2(watch.work() < 16 * Slowness, qPrintable(QString::number(watch.work())));
    QVERIFY2(watch.longestWork() < 250 * Slowness, qPrintable(QString::number(watch.longestWork())));
    QCOMPARE(changeSets(Purpose::Check), 1);
    int answering = 0;
    const auto* model = m_list->model();
    for (int row = 0; row < model->rowCount(); ++row)
        answering += model->index(row, NodeListModel::StateColumn).data().toString() == "Answers" ? 1 : 0;
    QVERIFY2(answering >= count - count / 100,
             qPrintable(QString::number(answering))); // some hostile ones do
}

/// For whoever mends what was found; an import takes the rest of the list.
void tst_CameraCheck::statesAreExported()
{
    const SimulatedSite site({"--cameras", "2", "--onvif", "digest,web"});
    QVERIFY(site.isUp);
    const QStringList ids = addCameras(site, 2);
    open();
    QTemporaryDir folder;
    QString file;
    int number = 0;
    const auto exported = [&](const char* command) {
        file = folder.filePath(QString("list%1.csv").arg(++number)); // nothing to be replaced
        const Answers answers(
            {[&file](QDialog* dialog) {
                 qobject_cast<QFileDialog*>(dialog)->selectFile(file);
                 dialog->accept();
             },
             [](QDialog* box) { qobject_cast<QMessageBox*>(box)->button(QMessageBox::No)->click(); }});
        action(command)->trigger();
        QFile list(file);
        return list.open(QIODevice::ReadOnly) ? QString::fromUtf8(list.readAll()).split("\r\n")
                                              : QStringList();
    };
    QVERIFY(!exported("actionExport").value(0).contains("state"));
    check();
    QStringList lines = exported("actionExport");
    QVERIFY2(lines.value(0).endsWith(",state,reason,checked"), qPrintable(lines.value(0)));
    QVERIFY2(lines.filter("Camera 1").value(0).contains(",Answers,,20"), qPrintable(lines.join('\n')));
    QVERIFY2(lines.filter("Camera 2").value(0).contains(",Not understood,it does not speak ONVIF,20"),
             qPrintable(lines.join('\n')));
    m_list->selectNodes({ids.at(1)});
    lines = exported("actionExportSelected");
    QCOMPARE(lines.filter("Camera").size(), 1);
    QVERIFY(lines.value(1).contains(",Not understood,"));
    Languages::use("de"); // what was said before, too
    lines = exported("actionExportSelected");
    Languages::use("en");
    QVERIFY2(lines.value(1).contains(QString::fromUtf8("das Gerät spricht kein ONVIF")),
             qPrintable(lines.join('\n')));

    const auto result = CameraSurvey::importCameras(file);
    QCOMPARE(result.error, QString());
    QCOMPARE(result.unchanged, 1);
    QCOMPARE(result.ignoredColumns, QStringList({"state", "reason", "checked"}));
}

void tst_CameraCheck::roomForLongTexts()
{
    const SimulatedSite site({"--cameras", "2", "--onvif", "web"});
    QVERIFY(site.isUp);
    addCameras(site, 2);
    const testsupport::LongLanguage language;
    open();
    action("actionCheck")->trigger();
    KO_TRY_VERIFY(report());
    QCOMPARE(testsupport::cutOff(report()), QStringList());
}

/// What the scanners do is told in the same line, and can wait.
void tst_CameraCheck::lineHasRoomBesideBusyScanners()
{
    m_host->add(IPDeviceType, "Gate", "127.0.0.1");
    open();
    m_window->resize(900, 500);
    QLabel* scanners = child<QLabel>(m_window.get(), "scannerStatus");
    scanners->setText(
        "mDNS: 24 of 24, all interfaces  |  ARP: 200 of 254, eth0  |  WS-Discovery: 12 of 12, eth0");
    m_window->checking().offerToTry("12 device(s): user name and password set.",
                                    m_host->db()->nodeIdList(AllNodeTypes));
    const QLabel* text = child<QLabel>(m_window.get(), "checkLabel");
    QVERIFY(text->isVisible());
    KO_TRY_VERIFY(text->width() >= text->sizeHint().width());
}

KO_TEST_MAIN(tst_CameraCheck)
#include "tst_cameracheck.moc"
