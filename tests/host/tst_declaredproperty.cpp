#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/TestMain.h"

#include "dialogs/EditNodeDialog.h"
#include "drivers/InspectorPages.h"
#include "drivers/PropertyFormPage.h"
#include "exchange/CameraSurvey.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

using namespace ko;
using testsupport::child;

namespace {

// A property more takes a line in each of these two tables.

const QVector<NodeProperty>& properties()
{
    static const QVector<NodeProperty> all = {
        {QLatin1String("AssetTag"), QString("none"), "asset tag"},
        {QLatin1String("MountHeight"), 250, "mount height"},
        {QLatin1String("Outdoors"), false, "outdoors"},
        {QLatin1String("Tilt"), 0.5f, "tilt"},
        {QLatin1String("Note"), QString()}, // no column
    };
    return all;
}

const PropertyFormPage::Field fields[] = {
    {QLatin1String("AssetTag"), PropertyFormPage::Field::Text, "Asset tag:"},
    {QLatin1String("MountHeight"), PropertyFormPage::Field::Port, "Mount height:"},
    {QLatin1String("Outdoors"), PropertyFormPage::Field::Flag, "Outdoors"},
};

std::unique_ptr<InspectorPage> createPage(QWidget* parent)
{
    const QVector<PropertyFormPage::Field> all(std::begin(fields), std::end(fields));
    return std::make_unique<PageOf<PropertyFormPage>>(new PropertyFormPage(all, parent));
}

} // namespace

class DeclaredPropertyTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void newDevicesCarryIt();
    void isShownAndEdited();
    void isExportedAndImported();
    void badCellIsRefused();

private:
    QString file(const QByteArray& content);
    QByteArray exported();

    QTemporaryDir m_folder;
    std::unique_ptr<testsupport::HostFixture> m_host;
};

void DeclaredPropertyTest::initTestCase()
{
    for (const NodeProperty& property : properties())
        NodeTypes::declareForDevices(property);
    addPage(IPDeviceType, {"survey", "Survey", true, createPage});
}

void DeclaredPropertyTest::init()
{
    m_host.reset(); // before the next, so that there is one database
    m_host = std::make_unique<testsupport::HostFixture>();
}

void DeclaredPropertyTest::newDevicesCarryIt()
{
    for (const ENodeType type : {IPDeviceType, UrlCameraType, ChannelDeviceType}) {
        const auto node = m_host->db()->node(m_host->add(type, "Gate"));
        for (const NodeProperty& property : properties()) {
            QVERIFY2(node->hasProperty(property.key), property.key.data());
            QCOMPARE(node->properties()[property.key]->value(), property.value);
        }
    }
    QVERIFY(!m_host->db()->node(m_host->add(RecordingFolderType, "Folder"))->hasProperty("AssetTag"));
}

void DeclaredPropertyTest::isShownAndEdited()
{
    const QString id = m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    {
        EditNodeDialog dialog(id, nullptr, false, 0, nullptr);
        QCOMPARE(child<QLineEdit>(&dialog, "AssetTag")->text(), QString("none"));
        QCOMPARE(child<QSpinBox>(&dialog, "MountHeight")->value(), 250);
        QVERIFY(!child<QCheckBox>(&dialog, "Outdoors")->isChecked());
        child<QLineEdit>(&dialog, "AssetTag")->setText("K-17");
        child<QSpinBox>(&dialog, "MountHeight")->setValue(300);
        child<QCheckBox>(&dialog, "Outdoors")->setChecked(true);
        child<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    }
    m_host->reopen();
    const auto node = m_host->db()->node(id);
    QCOMPARE(node->stringProperty("AssetTag", QString()), QString("K-17"));
    QCOMPARE(node->intProperty("MountHeight", 0), 300);
    QVERIFY(node->boolProperty("Outdoors", false));

    const EditNodeDialog readOnly(id, nullptr, true, 0, nullptr);
    QVERIFY(child<QLineEdit>(&readOnly, "AssetTag")->isReadOnly());
    QVERIFY(child<QSpinBox>(&readOnly, "MountHeight")->isReadOnly());
    QVERIFY(!child<QCheckBox>(&readOnly, "Outdoors")->isEnabled());
}

void DeclaredPropertyTest::isExportedAndImported()
{
    const QString id = m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    m_host->change(id, [](Node* node) { node->setStringProperty("AssetTag", "K-17"); });
    const QByteArray list = exported();
    QVERIFY2(list.contains("name,address,port,SSL,user,password,channel,model,MAC,recording path,type,"
                           "asset tag,mount height,outdoors,tilt\r\n"),
             list);
    QVERIFY2(list.contains(",K-17,250,no,0.5\r\n"), list);

    const CameraSurvey::ImportResult result =
        CameraSurvey::importCameras(file("name,address,asset tag,mount height,outdoors,tilt\n"
                                         "Gate,10.0.0.1,K-18,-20,yes,1.25\n"
                                         "Yard,10.0.0.2,,,,\n"));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.updated, 1);
    QCOMPARE(result.added, 1);
    const auto gate = m_host->db()->node(id);
    QCOMPARE(gate->stringProperty("AssetTag", QString()), QString("K-18"));
    QCOMPARE(gate->intProperty("MountHeight", 0), -20);
    QVERIFY(gate->boolProperty("Outdoors", false));
    QCOMPARE(gate->floatProperty("Tilt", 0.0f), 1.25f);
    const auto yard = m_host->db()->node(m_host->db()->nodeIdList(IPDeviceType).last());
    QCOMPARE(yard->stringProperty("AssetTag", QString()), QString("none"));
    QCOMPARE(CameraSurvey::importCameras(file(exported())).unchanged, 2);
}

void DeclaredPropertyTest::badCellIsRefused()
{
    const CameraSurvey::ImportResult result = CameraSurvey::importCameras(
        file("name,address,mount height,outdoors,tilt\n"
             "Gate,10.0.0.1,high,,\nYard,10.0.0.2,,perhaps,\nDoor,10.0.0.3,,,steep\nHall,10.0.0.4,1,no,2\n"));
    QCOMPARE(result.added, 1);
    QStringList reasons;
    for (const CameraSurvey::BadLine& bad : result.badLines)
        reasons.append(bad.reason);
    QCOMPARE(reasons, QStringList({"bad mount height: it is not a number",
                                   "bad outdoors: it is not one of yes, no, true, false, 1, 0",
                                   "bad tilt: it is not a number"}));
}

QString DeclaredPropertyTest::file(const QByteArray& content)
{
    QFile file(m_folder.filePath("survey.csv"));
    return file.open(QFile::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
}

QByteArray DeclaredPropertyTest::exported()
{
    QFile file(m_folder.filePath("out.csv"));
    const auto result = CameraSurvey::exportCameras(file.fileName(), CameraSurvey::Passwords::Write);
    return result.error.isEmpty() && file.open(QFile::ReadOnly) ? file.readAll() : result.error.toUtf8();
}

KO_TEST_MAIN(DeclaredPropertyTest)
#include "tst_declaredproperty.moc"
