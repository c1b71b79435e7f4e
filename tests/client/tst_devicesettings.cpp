#include "support/Answers.h"
#include "support/HostFixture.h"
#include "support/TestMain.h"

#include "DeviceSettings.h"
#include "audit/AuditLog.h"
#include "database/StoredHistory.h"
#include "ko/IPDeviceNode.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QThread>
#include <QTimer>

#include <algorithm>

using namespace ko;
using testsupport::Answers;
using testsupport::child;
using testsupport::ModalAnswer;

namespace {

void pressEnter(QDialog* dialog)
{
    QTest::keyClick(dialog, Qt::Key_Return);
}

void cancel(QDialog* dialog)
{
    dialog->reject();
}

} // namespace

class tst_DeviceSettings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_host.reset(); }

    void camerasWithoutAddressAreNamed();
    void leftOutIsLeftAsItIs();
    void allTheSame();
    void noneWithAddress();
    void nothingToAskForOne();
    void previewSettingsAtOnce();
    void othersAloneOpenNothing();
    void credentialsThatDiffer();
    void credentialsAgreedOn();
    void credentialsThatAreTheSame();
    void manyShowProgress_data();
    void manyShowProgress();

private:
    QString addCamera(const QString& name, const QString& factoryAddress);
    kom::smart<const IPDeviceNode> device(const QString& id) const
    {
        return m_host->db()->node(id).cast<const IPDeviceNode>();
    }
    void setUser(const QString& id, const QString& user, const QString& password);
    int usage(const QString& id) const { return device(id)->intProperty("RecordingStorageUsage", 0); }

    std::unique_ptr<testsupport::HostFixture> m_host;
    QStringList m_cameras; ///< the last one has no factory address
};

QString tst_DeviceSettings::addCamera(const QString& name, const QString& factoryAddress)
{
    const QString id = m_host->add(IPDeviceType, name, name + ".example");
    m_host->change(id, [&](Node* node) { node->setStringProperty("FactoryIP", factoryAddress); });
    return id;
}

void tst_DeviceSettings::setUser(const QString& id, const QString& user, const QString& password)
{
    m_host->change(id, [&](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setUser(user, password); });
}

void tst_DeviceSettings::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_host->db()->setGlobalRecordingFolderPath("/recordings");
    m_cameras = QStringList({addCamera("Gate", "10_1_2_3"), addCamera("Yard", "10_1_2_4"),
                             addCamera("Dock", "10_0_0_0"), addCamera("Roof", QString())});
}

void tst_DeviceSettings::camerasWithoutAddressAreNamed()
{
    QString text;
    const Answers answers({[&text](QDialog* dialog) {
        text = qobject_cast<QMessageBox*>(dialog)->text();
        dialog->reject();
    }});
    QCOMPARE(DeviceSettings::editRecording(*m_host->db(), m_cameras, nullptr), QString());
    QCOMPARE(answers.opened(), QStringList("factoryAddressBox")); // and no dialog after it
    for (const char* name : {"Dock", "Roof"})
        QVERIFY2(text.contains(QLatin1String(name)), qPrintable(text));
    QVERIFY(!text.contains("Gate") && !text.contains("Yard"));
}

/// Enter takes the way on which nothing is lost.
void tst_DeviceSettings::leftOutIsLeftAsItIs()
{
    QString cameras;
    const Answers answers({pressEnter, [&cameras](QDialog* dialog) {
                               cameras = child<QLabel>(dialog, "cameraLabel")->text();
                               child<QRadioButton>(dialog, "defaultFileServerPathRadioButton")->click();
                               dialog->accept();
                           }});
    const QString done = DeviceSettings::editRecording(*m_host->db(), m_cameras, nullptr);
    QCOMPARE(answers.opened(), QStringList({"factoryAddressBox", "RecordingFolderMassAssignmentDialog"}));
    QVERIFY2(cameras.contains("Gate") && !cameras.contains("Roof"), qPrintable(cameras));
    QCOMPARE(usage(m_cameras.at(0)), 1);
    QCOMPARE(usage(m_cameras.at(1)), 1);
    QCOMPARE(usage(m_cameras.at(2)), 0);
    QCOMPARE(usage(m_cameras.at(3)), 0);
    QVERIFY2(done.startsWith("2 device") && done.contains("2 left"), qPrintable(done));
}

void tst_DeviceSettings::allTheSame()
{
    const Answers answers({[](QDialog* dialog) { ModalAnswer::press("Go On With All")(dialog); },
                           [](QDialog* dialog) {
                               child<QRadioButton>(dialog, "defaultFileServerPathRadioButton")->click();
                               dialog->accept();
                           }});
    const QString done = DeviceSettings::editRecording(*m_host->db(), m_cameras, nullptr);
    QVERIFY2(done.startsWith("4 device"), qPrintable(done));
    QCOMPARE(usage(m_cameras.at(3)), 1);
}

void tst_DeviceSettings::noneWithAddress()
{
    const Answers answers({pressEnter}); // nothing would be left: it means Cancel
    QCOMPARE(DeviceSettings::editRecording(*m_host->db(), m_cameras.mid(2), nullptr), QString());
    QCOMPARE(answers.opened(), QStringList("factoryAddressBox"));
}

void tst_DeviceSettings::nothingToAskForOne()
{
    const Answers answers({cancel});
    DeviceSettings::editRecording(*m_host->db(), m_cameras.mid(3), nullptr);
    QCOMPARE(answers.opened(), QStringList("RecordingFolderAssignmentDialog"));
}

/// Of a camera that has never been reached through the remote preview server.
void tst_DeviceSettings::previewSettingsAtOnce()
{
    const Answers answers({[](QDialog* dialog) {
                               child<QCheckBox>(dialog, "recordingTransponderCheckBox")->click();
                               child<QPushButton>(dialog, "recordingTransponderPushButton")->click();
                           },
                           cancel});
    DeviceSettings::editRecording(*m_host->db(), m_cameras.mid(0, 1), nullptr);
    QCOMPARE(answers.opened(),
             QStringList({"RecordingFolderAssignmentDialog", "RecordingTransponderCustomSettingsDialog"}));
    QCOMPARE(m_host->db()->nodeIdList(RecordingTransponderType), QStringList());
}

void tst_DeviceSettings::othersAloneOpenNothing()
{
    const QStringList others = {m_host->add(UrlCameraType, "First", "first.example"),
                                m_host->add(UrlCameraType, "Second", "second.example")};
    const Answers answers({cancel});
    QVERIFY(!DeviceSettings::editRecording(*m_host->db(), others, nullptr).isEmpty());
    QCOMPARE(answers.opened(), QStringList());
}

/// Enter, without looking, must not overwrite what differs.
void tst_DeviceSettings::credentialsThatDiffer()
{
    setUser(m_cameras.at(0), "admin", "first secret");
    setUser(m_cameras.at(1), "admin", "second secret");
    setUser(m_cameras.at(2), "viewer", "second secret");
    setUser(m_cameras.at(3), "", "third secret");
    QString text;
    const Answers answers({[&text](QDialog* dialog) {
        text = qobject_cast<QMessageBox*>(dialog)->text();
        QTest::keyClick(dialog, Qt::Key_Return);
    }});
    QCOMPARE(DeviceSettings::editCredentials(*m_host->db(), m_cameras, nullptr), QString());
    QCOMPARE(answers.opened(), QStringList("credentialsBox"));
    QVERIFY2(text.contains("3 user names and 3 passwords"), qPrintable(text));
    QVERIFY(!text.contains("secret"));
    QCOMPARE(device(m_cameras.at(1))->password(1), QString("second secret"));
}

void tst_DeviceSettings::credentialsAgreedOn()
{
    setUser(m_cameras.at(0), "admin", "first");
    const Answers answers({[](QDialog* dialog) { ModalAnswer::press("Give All the Same...")(dialog); },
                           [](QDialog* dialog) {
                               child<QLineEdit>(dialog, "passWordLineEdit")->setText("new");
                               dialog->accept();
                           }});
    const QString done = DeviceSettings::editCredentials(*m_host->db(), m_cameras, nullptr);
    QVERIFY2(done.startsWith("4 device"), qPrintable(done));
    for (const QString& id : std::as_const(m_cameras))
        QCOMPARE(device(id)->password(1), QString("new"));
}

void tst_DeviceSettings::credentialsThatAreTheSame()
{
    for (const QString& id : std::as_const(m_cameras))
        setUser(id, "admin", "same");
    const Answers answers({cancel});
    DeviceSettings::editCredentials(*m_host->db(), m_cameras, nullptr);
    QCOMPARE(answers.opened(), QStringList("NodeAuthenticateDialog"));
}

void tst_DeviceSettings::manyShowProgress_data()
{
    QTest::addColumn<bool>("credentials");
    QTest::newRow("credentials") << true;
    QTest::newRow("recordings") << false;
}

/// And can be ended; what is stored then is one change set, logged as far as it came.
void tst_DeviceSettings::manyShowProgress()
{
    QFETCH(bool, credentials);
    HostNodeDB& db = *m_host->db();
    QStringList ids;
    for (int i = 0; i < 1000; ++i)
        ids.append(addCamera(QString("Camera %1").arg(i), QString("10_2_%1_%2").arg(i / 250).arg(i % 250)));
    db.flush();
    const qint64 logged = db.auditLog().count();
    const qint64 sets = db.history().changeSets(0, 100000).last().number;
    // Somebody who takes time with each, as long as many thousands take on a fast machine.
    connect(&db, &NodeDB::nodeUpdated, this, [] { QThread::usleep(1000); });
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [] {
        const QWidgetList all = QApplication::allWidgets();
        for (QWidget* each : all) {
            if (auto* work = qobject_cast<QProgressDialog*>(each))
                work->cancel();
        }
    });
    const Answers answers({[&](QDialog* dialog) {
        if (credentials)
            child<QLineEdit>(dialog, "userNameLineEdit")->setText("operator");
        else
            child<QRadioButton>(dialog, "defaultFileServerPathRadioButton")->click();
        watch.start(0);
        dialog->accept();
    }});
    const QString done = credentials ? DeviceSettings::editCredentials(db, ids, nullptr)
                                     : DeviceSettings::editRecording(db, ids, nullptr);
    QCOMPARE(answers.opened().size(), 1);
    const int changed = int(std::count_if(ids.begin(), ids.end(), [&](const QString& id) {
        return credentials ? device(id)->user(1) == "operator" : usage(id) == 1;
    }));
    QVERIFY2(changed > 0 && changed < ids.size(), qPrintable(QString::number(changed)));
    QVERIFY2(done.startsWith(QString("%1 device(s)").arg(changed)) &&
                 done.endsWith(QString("%1 left as they were.").arg(ids.size() - changed)),
             qPrintable(done));
    QCOMPARE(db.auditLog().count() - logged, qint64(changed));
    const QVector<ChangeSet> since = db.history().changeSets(sets, 100);
    QCOMPARE(since.size(), 1);
    QCOMPARE(since.first().cause.purpose, credentials ? Purpose::Credentials : Purpose::Recording);
}

KO_TEST_MAIN(tst_DeviceSettings)
#include "tst_devicesettings.moc"
