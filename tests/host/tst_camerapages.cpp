#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/TestMain.h"

#include "dialogs/AddNodeDialog.h"
#include "dialogs/EditNodeDialog.h"
#include "drivers/RemotePreviewDraft.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

namespace {

QPushButton* button(const QDialog& dialog, QDialogButtonBox::StandardButton which)
{
    return dialog.findChild<QDialogButtonBox*>()->button(which);
}

} // namespace

/// What this host adds to the pages of a camera.
class tst_CameraPages : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_host.reset(); }

    void macOfANewDevice_data();
    void macOfANewDevice();
    void urlsOfANewCamera();
    void noMacIsRefused();
    void refusedUntilAllIsGood();
    void anotherTypeRefusesNothing();
    void factoryAddressOfANewDeviceCannotBeTyped();
    void previewSettingsAtOnce_data();
    void previewSettingsAtOnce();
    void previewOfItsOwnStays();

private:
    HostNodeDB& db() const { return *m_host->db(); }
    QStringList previews() const { return db().nodeIdList(RecordingTransponderType); }

    std::unique_ptr<testsupport::HostFixture> m_host;
    QString m_camera;
};

void tst_CameraPages::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_camera = m_host->add(IPDeviceType, "Gate", "10.0.0.7");
    db().setDefaultRecordingTransponderIP("preview.example");
}

void tst_CameraPages::macOfANewDevice_data()
{
    QTest::addColumn<int>("type");
    for (const ENodeType type : {IPDeviceType, UrlCameraType, ChannelDeviceType})
        QTest::newRow(qPrintable(NodeTypes::readableName(type))) << int(type);
}

void tst_CameraPages::macOfANewDevice()
{
    QFETCH(int, type);
    const QList<ENodeType> types = {ENodeType(type)};
    AddNodeDialog dialog(this, nullptr, &types, false, 0);
    dialog.show();
    QTest::keyClicks(child<QLineEdit>(&dialog, "addressLineEdit"), "10.0.0.8");
    QTest::keyClicks(child<QLineEdit>(&dialog, "macLineEdit"), "00005e1234ab");
    button(dialog, QDialogButtonBox::Ok)->click();
    const auto node = db().node(dialog.nodeId()).cast<const IPDeviceNode>();
    QVERIFY(!node.null());
    QCOMPARE(node->macAddress().toString(true), QString("00:00:5E:12:34:AB"));
    QVERIFY(db().flush());
    QCOMPARE(db().node(dialog.nodeId())->stringProperty("FactoryIP", QString()), QString("00005E1234AB"));
}

void tst_CameraPages::urlsOfANewCamera()
{
    const QList<ENodeType> types = {UrlCameraType};
    AddNodeDialog dialog(this, nullptr, &types, false, 0);
    dialog.show();
    QTest::keyClicks(child<QLineEdit>(&dialog, "nameLineEdit"), "Yard");
    QTest::keyClicks(child<QLineEdit>(&dialog, "lineEditLiveSteam"), "http://10.0.0.8/live");
    QTest::keyClicks(child<QLineEdit>(&dialog, "lineEditZoomIn"), "http://10.0.0.8/tele");
    button(dialog, QDialogButtonBox::Ok)->click();
    const kom::smart<const Node> node = db().node(dialog.nodeId());
    QVERIFY(!node.null());
    QCOMPARE(node->stringProperty("UrlPTZStream", QString()), QString("http://10.0.0.8/live"));
    QCOMPARE(node->stringProperty("UrlPTZZommIn", QString()), QString("http://10.0.0.8/tele"));
    QCOMPARE(node->stringProperty("UrlPTZUp", "none"), QString());
    QCOMPARE(node->name(), QString("Yard"));
}

void tst_CameraPages::noMacIsRefused()
{
    const QList<ENodeType> types = {IPDeviceType};
    AddNodeDialog dialog(this, nullptr, &types, false, 0);
    dialog.show();
    QLineEdit* mac = child<QLineEdit>(&dialog, "macLineEdit");
    const QLabel* problem = child<QLabel>(&dialog, "macProblemLabel");
    QTest::keyClicks(mac, "00:00:5E");
    QVERIFY(!button(dialog, QDialogButtonBox::Ok)->isEnabled());
    QVERIFY(problem->isHidden());
    emit mac->editingFinished();
    QVERIFY(!problem->isHidden() && problem->text().contains("twelve"));
    QCOMPARE(mac->accessibleDescription(), problem->text());
    QTest::keyClicks(mac, ":12:34:AB");
    QVERIFY(button(dialog, QDialogButtonBox::Ok)->isEnabled());
    QVERIFY(problem->isHidden());
    mac->clear();
    QVERIFY(button(dialog, QDialogButtonBox::Ok)->isEnabled());
}

/// A good address does not make up for a bad MAC address.
void tst_CameraPages::refusedUntilAllIsGood()
{
    const QList<ENodeType> types = {IPDeviceType};
    AddNodeDialog dialog(this, nullptr, &types, false, 0);
    dialog.show();
    QLineEdit* address = child<QLineEdit>(&dialog, "addressLineEdit");
    QTest::keyClicks(child<QLineEdit>(&dialog, "macLineEdit"), "none");
    QTest::keyClicks(address, "two words");
    QVERIFY(!button(dialog, QDialogButtonBox::Ok)->isEnabled());
    address->selectAll();
    QTest::keyClicks(address, "10.0.0.8");
    QVERIFY(!button(dialog, QDialogButtonBox::Ok)->isEnabled());
    child<QLineEdit>(&dialog, "macLineEdit")->clear();
    QVERIFY(button(dialog, QDialogButtonBox::Ok)->isEnabled());
}

void tst_CameraPages::anotherTypeRefusesNothing()
{
    const QList<ENodeType> types = {IPDeviceType, RecordingFolderType};
    AddNodeDialog dialog(this, nullptr, &types, false, 0);
    dialog.show();
    QTest::keyClicks(child<QLineEdit>(&dialog, "macLineEdit"), "none");
    QVERIFY(!button(dialog, QDialogButtonBox::Ok)->isEnabled());
    child<QComboBox>(&dialog, "nodeTypeComboBox")->setCurrentIndex(1);
    QVERIFY(button(dialog, QDialogButtonBox::Ok)->isEnabled());
}

void tst_CameraPages::factoryAddressOfANewDeviceCannotBeTyped()
{
    const QList<ENodeType> types = {IPDeviceType};
    AddNodeDialog dialog(this, nullptr, &types, false, 0);
    QVERIFY(child<QLineEdit>(&dialog, "factoryIPLineEdit")->isReadOnly());
    QVERIFY(!child<QLineEdit>(&dialog, "modelLineEdit")->isReadOnly());
    const EditNodeDialog edit(m_camera, nullptr, true, 0, nullptr);
    QVERIFY(child<QLineEdit>(&edit, "macLineEdit")->isReadOnly());
}

void tst_CameraPages::previewSettingsAtOnce_data()
{
    QTest::addColumn<bool>("isConfirmed");
    QTest::newRow("OK") << true;
    QTest::newRow("Cancel") << false;
}

/// Of a camera that has never been reached through the remote preview server.
void tst_CameraPages::previewSettingsAtOnce()
{
    QFETCH(bool, isConfirmed);
    EditNodeDialog editor(m_camera, nullptr, false, 0, nullptr);
    editor.show();
    QString server;
    const auto enterSettings = [&](QDialog* settings) {
        QCOMPARE(settings->objectName(), QString("RecordingTransponderCustomSettingsDialog"));
        server = child<QLineEdit>(settings, "connectionDataAddressLineEdit")->text();
        child<QCheckBox>(settings, "qualityCustomCheckBox")->setChecked(true);
        button(*settings, QDialogButtonBox::Ok)->click();
    };
    const ModalAnswer assignment([&](QDialog* dialog) {
        QCOMPARE(previews(), QStringList()); // whoever only looks leaves nothing
        child<QCheckBox>(dialog, "recordingTransponderCheckBox")->click();
        const ModalAnswer settings(enterSettings);
        child<QPushButton>(dialog, "recordingTransponderPushButton")->click();
        QVERIFY(settings.fired());
        button(*dialog, isConfirmed ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)->click();
    });
    child<QPushButton>(&editor, "changePushButton")->click();
    QVERIFY(assignment.fired());
    QCOMPARE(server, QString("preview.example"));
    QCOMPARE(int(previews().size()), isConfirmed ? 1 : 0);
    QCOMPARE(db().relatedNodes(m_camera, RecordingTransponderRelation), previews());
    if (isConfirmed)
        QVERIFY(
            !db().node(previews().constFirst())->boolProperty("RecordingTransponderQualityUseDefault", true));
}

void tst_CameraPages::previewOfItsOwnStays()
{
    m_host->change(m_camera, [](Node* node) { node->setBoolProperty("UseRecordingTransponder", true); });
    const QStringList before = previews();
    QCOMPARE(int(before.size()), 1);
    EditNodeDialog editor(m_camera, nullptr, false, 0, nullptr);
    editor.show();
    const ModalAnswer assignment([&](QDialog* dialog) {
        child<QCheckBox>(dialog, "recordingTransponderCheckBox")->click();
        child<QCheckBox>(dialog, "recordingTransponderCheckBox")->click();
        child<QCheckBox>(dialog, "recordingTransponderCheckBox")->click();
        button(*dialog, QDialogButtonBox::Ok)->click();
    });
    child<QPushButton>(&editor, "changePushButton")->click();
    QVERIFY(assignment.fired());
    QVERIFY(!db().node(m_camera)->boolProperty("UseRecordingTransponder", true));
    QCOMPARE(previews(), before);
}

KO_TEST_MAIN(tst_CameraPages)
#include "tst_camerapages.moc"
