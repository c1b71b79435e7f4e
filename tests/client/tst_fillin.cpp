#include "database/StoredHistory.h"
#include "support/Answers.h"
#include "support/DialogCheck.h"
#include "support/HostFixture.h"
#include "support/Patience.h"
#include "support/SimulatedSite.h"
#include "support/TestMain.h"

#include "FillInDialog.h"
#include "MainWindow.h"
#include "NodeListView.h"
#include "audit/AuditLog.h"
#include "devices/KnownDevice.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTableView>
#include <QTimer>

using namespace ko;
using testsupport::Answers;
using testsupport::child;
using testsupport::ModalAnswer;
using testsupport::Patience;
using testsupport::SimulatedSite;

namespace {

QPushButton* button(const QDialog* dialog, QDialogButtonBox::StandardButton which)
{
    return dialog->findChild<QDialogButtonBox*>()->button(which);
}

const FillInModel* model(const QDialog* dialog)
{
    return qobject_cast<const FillInModel*>(child<QTableView>(dialog, "factsTableView")->model());
}

bool waitForAnswers(const QDialog* dialog)
{
    return QTest::qWaitFor([&] { return child<QProgressBar>(dialog, "progressBar")->isHidden(); }, Patience);
}

void waitAndPress(QDialog* dialog, QDialogButtonBox::StandardButton which)
{
    QVERIFY(waitForAnswers(dialog));
    button(dialog, which)->click();
}

void confirm(QDialog* dialog)
{
    waitAndPress(dialog, QDialogButtonBox::Ok);
}

/// What the first camera of the table would get, as it is shown.
QMap<QString, QString> shown(const QDialog* dialog)
{
    QMap<QString, QString> shown;
    const FillInModel* facts = model(dialog);
    const QString first = facts->index(0, FillInModel::CameraColumn).data().toString();
    for (int row = 0; row < facts->rowCount(); ++row) {
        if (facts->index(row, FillInModel::CameraColumn).data().toString() == first)
            shown.insert(facts->index(row, FillInModel::WhatColumn).data().toString(),
                         facts->index(row, FillInModel::ThenColumn).data().toString());
    }
    return shown;
}

} // namespace

/// What cameras of a simulated site tell, as the user of the main window takes it over.
class tst_FillIn : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void toldIsShownAndStored();
    void cancelLeavesNothing_data();
    void cancelLeavesNothing();
    void whatIsSetIsReplacedOnlyIfWanted();
    void untickedIsLeftOut();
    void otherDeviceTellsNothing();
    void whoTellsNothingIsNamed();
    void changedMeanwhileStays();
    void nothingToFillIn();
    void camerasAreAskedForTheirExtension();
    void roomForLongTexts();

private:
    QString add(int camera, const QString& name);
    void fillIn(const QStringList& ids, const std::function<void(QDialog*)>& answer);
    QString text(const QString& id, const char* key) const
    {
        return m_host->db()->node(id)->stringProperty(key, QString());
    }
    QVector<ChangeSet> newSets() { return m_host->db()->history().changeSets(m_last, 1000); }
    void remember() { m_last = m_host->db()->history().changeSets(0, 1000).last().number; }

    std::unique_ptr<SimulatedSite> m_site;
    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
    QStringList m_cameras;
    qint64 m_last = 0;
};

void tst_FillIn::initTestCase()
{
    m_site = std::make_unique<SimulatedSite>(
        QStringList({"--cameras", "3", "--onvif", "digest,token,digest", "--model", "KS-9"}));
    QVERIFY(m_site->isUp);
}

void tst_FillIn::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_host->db()->setGlobalRecordingFolderPath("/recordings");
    m_cameras = QStringList({add(1, "Gate"), add(2, "Yard")});
    QVERIFY(m_host->db()->flush());
    QCoreApplication::processEvents();
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
    remember();
}

void tst_FillIn::cleanup()
{
    m_window.reset();
    m_host.reset();
}

QString tst_FillIn::add(int camera, const QString& name)
{
    const DeviceTarget target = m_site->target(camera);
    const QString id = m_host->add(IPDeviceType, name, target.address);
    m_host->change(id, [&target](Node* node) {
        auto* device = dynamic_cast<IPDeviceNode*>(node);
        device->setPort(target.port);
        device->setUser(target.user, target.password);
    });
    return id;
}

void tst_FillIn::fillIn(const QStringList& ids, const std::function<void(QDialog*)>& answer)
{
    QCoreApplication::processEvents();
    m_window->list().selectNodes(ids);
    const Answers answers({answer});
    child<QAction>(m_window.get(), "actionFillIn")->trigger();
    QCOMPARE(answers.opened(), QStringList("FillInDialog"));
}

void tst_FillIn::toldIsShownAndStored()
{
    const qint64 logged = m_host->db()->auditLog().count();
    fillIn(m_cameras, [this](QDialog* dialog) {
        QVERIFY(!button(dialog, QDialogButtonBox::Ok)->isEnabled()); // nothing is told yet
        QVERIFY(waitForAnswers(dialog));
        const QMap<QString, QString> told = shown(dialog);
        QCOMPARE(told.value("Model"), QString("KS-9"));
        QCOMPARE(told.value("Factory IP address"), QString("026B73000001"));
        QCOMPARE(told.value("Pan, tilt, zoom"), QString("yes"));
        QVERIFY(newSets().isEmpty());
        button(dialog, QDialogButtonBox::Ok)->click();
    });
    QCOMPARE(text(m_cameras.at(0), "Model"), QString("KS-9"));
    QCOMPARE(text(m_cameras.at(1), "Version"), QString("1.0"));
    QCOMPARE(text(m_cameras.at(1), "FactoryIP"), QString("026B73000002"));
    QCOMPARE(KnownDevice::of(*m_host->db()->node(m_cameras.at(0))).serial, QString("KS000001"));
    const QVector<ChangeSet> sets = newSets();
    QCOMPARE(int(sets.size()), 1);
    QCOMPARE(sets.first().cause.purpose, Purpose::FillIn);
    QCOMPARE(int(sets.first().nodes.size()), 2);
    QCOMPARE(m_host->db()->auditLog().count(), logged + 2);
    QVERIFY(m_window->statusBar()->currentMessage().startsWith("2 device"));
}

void tst_FillIn::cancelLeavesNothing_data()
{
    QTest::addColumn<bool>("isAnswered");
    QTest::newRow("while they are asked") << false;
    QTest::newRow("when they have answered") << true;
}

void tst_FillIn::cancelLeavesNothing()
{
    QFETCH(bool, isAnswered);
    fillIn(m_cameras, [isAnswered](QDialog* dialog) {
        QVERIFY(!isAnswered || waitForAnswers(dialog));
        button(dialog, QDialogButtonBox::Cancel)->click();
    });
    QTest::qWait(300);
    QVERIFY(newSets().isEmpty());
    QVERIFY(m_window->statusBar()->currentMessage().isEmpty());
}

void tst_FillIn::whatIsSetIsReplacedOnlyIfWanted()
{
    for (const bool isWanted : {false, true}) {
        m_host->change(m_cameras.at(0), [](Node* node) { node->setStringProperty("Model", "Dome"); });
        fillIn(m_cameras.mid(0, 1), [isWanted](QDialog* dialog) {
            QVERIFY(waitForAnswers(dialog));
            auto* replace = child<QCheckBox>(dialog, "replaceCheckBox");
            QVERIFY(replace->isEnabled());
            if (isWanted)
                replace->click();
            button(dialog, QDialogButtonBox::Ok)->click();
        });
        QCOMPARE(text(m_cameras.at(0), "Model"), QString(isWanted ? "KS-9" : "Dome"));
        QCOMPARE(text(m_cameras.at(0), "Version"), QString("1.0"));
    }
}

/// With the keyboard, on which the table has the focus.
void tst_FillIn::untickedIsLeftOut()
{
    fillIn(m_cameras.mid(0, 1), [](QDialog* dialog) {
        QVERIFY(waitForAnswers(dialog));
        auto* table = child<QTableView>(dialog, "factsTableView");
        QCOMPARE(table->model()->index(0, FillInModel::WhatColumn).data().toString(), QString("Model"));
        QTest::keyClick(table, Qt::Key_Space);
        QVERIFY(!model(dialog)->rows().first().isTicked);
        button(dialog, QDialogButtonBox::Ok)->click();
    });
    QCOMPARE(text(m_cameras.at(0), "Model"), QString());
    QCOMPARE(text(m_cameras.at(0), "Version"), QString("1.0"));
}

void tst_FillIn::otherDeviceTellsNothing()
{
    m_host->change(m_cameras.at(0), [](Node* node) {
        DeviceIdentity known;
        known.endpoint = "another";
        KnownDevice::replace(*node, known);
    });
    fillIn(m_cameras, [](QDialog* dialog) {
        QVERIFY(waitForAnswers(dialog));
        const QString silent = child<QLabel>(dialog, "silentLabel")->text();
        QVERIFY2(silent.startsWith("1 device") && silent.contains("Gate: "), qPrintable(silent));
        button(dialog, QDialogButtonBox::Ok)->click();
    });
    QCOMPARE(text(m_cameras.at(0), "Model"), QString());
    QCOMPARE(text(m_cameras.at(1), "Model"), QString("KS-9"));
}

void tst_FillIn::whoTellsNothingIsNamed()
{
    m_host->change(m_cameras.at(0),
                   [](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setUser("admin", "wrong"); });
    const QString away = add(3, "Away");
    m_host->change(away, [](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setPort(1); });
    const QStringList ids = {m_cameras.at(0), away, m_host->add(IPDeviceType, "Nowhere")};
    fillIn(ids, [](QDialog* dialog) {
        QVERIFY(waitForAnswers(dialog));
        const QString silent = child<QLabel>(dialog, "silentLabel")->text();
        for (const char* name : {"Gate: ", "Away: ", "Nowhere: it has no address"})
            QVERIFY2(silent.contains(name), qPrintable(silent));
        QVERIFY(!silent.contains("wrong") && !silent.contains("kosim-pass"));
        QVERIFY(!button(dialog, QDialogButtonBox::Ok)->isEnabled());
        QTest::keyClick(child<QTableView>(dialog, "factsTableView"), Qt::Key_Return);
        QVERIFY(dialog->isVisible());
        button(dialog, QDialogButtonBox::Cancel)->click();
    });
}

/// By another program, say, while the dialog is open.
void tst_FillIn::changedMeanwhileStays()
{
    fillIn(m_cameras, [this](QDialog* dialog) {
        QVERIFY(waitForAnswers(dialog));
        m_host->change(m_cameras.at(0), [](Node* node) { node->setStringProperty("Model", "Dome"); });
        m_host->change(m_cameras.at(1),
                       [](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setAddress("127.0.1.3"); });
        button(dialog, QDialogButtonBox::Ok)->click();
    });
    QCOMPARE(text(m_cameras.at(0), "Model"), QString("Dome"));
    QCOMPARE(text(m_cameras.at(0), "Version"), QString("1.0"));
    QCOMPARE(text(m_cameras.at(1), "Model"), QString()); // another device is there
}

void tst_FillIn::nothingToFillIn()
{
    fillIn(m_cameras, confirm);
    fillIn(m_cameras, [](QDialog* dialog) {
        QVERIFY(waitForAnswers(dialog));
        QCOMPARE(model(dialog)->rowCount(), 0);
        QVERIFY(child<QLabel>(dialog, "hintLabel")->text().contains("nothing"));
        button(dialog, QDialogButtonBox::Cancel)->click();
    });
}

/// Cameras of which only the address was known get a folder each, below the path that was typed.
void tst_FillIn::camerasAreAskedForTheirExtension()
{
    m_window->list().selectNodes(m_cameras);
    QStringList opened;
    QTimer user;
    connect(&user, &QTimer::timeout, this, [&opened] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        const QString name = dialog ? dialog->objectName() : QString();
        if (!dialog || opened.contains(name))
            return;
        if (name == "FillInDialog" && !child<QProgressBar>(dialog, "progressBar")->isHidden())
            return;
        opened.append(name);
        if (name == "factoryAddressBox") {
            ModalAnswer::press("Ask the Cameras...")(dialog);
            return;
        }
        if (name == "RecordingFolderMassAssignmentDialog") {
            child<QRadioButton>(dialog, "specificFileServerPathRadioButton")->click();
            child<QLineEdit>(dialog, "pathLineEdit")->setText("//server/share");
        }
        button(dialog, QDialogButtonBox::Ok)->click();
    });
    user.start(10);
    child<QAction>(m_window.get(), "actionRecording")->trigger();
    QCOMPARE(opened,
             QStringList({"factoryAddressBox", "FillInDialog", "RecordingFolderMassAssignmentDialog"}));
    for (int i = 0; i < m_cameras.size(); ++i) {
        const QString folder = m_host->db()->relatedNodes(m_cameras.at(i), RecordingFolderRelation).value(0);
        QCOMPARE(text(folder, "Path"), QString("\\\\server/share/026B7300000%1").arg(i + 1));
    }
}

void tst_FillIn::roomForLongTexts()
{
    const testsupport::LongLanguage language;
    fillIn(m_cameras, [](QDialog* dialog) {
        QVERIFY(waitForAnswers(dialog));
        QCOMPARE(testsupport::cutOff(dialog), QStringList());
        button(dialog, QDialogButtonBox::Cancel)->click();
    });
}

KO_TEST_MAIN(tst_FillIn)
#include "tst_fillin.moc"
