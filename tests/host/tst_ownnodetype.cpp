#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/TestMain.h"

#include "dialogs/AddNodeDialog.h"
#include "dialogs/EditNodeDialog.h"
#include "drivers/InspectorPages.h"
#include "drivers/NodeTypePlugin.h"
#include "drivers/PropertyFormPage.h"
#include "ko/IPDeviceNode.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

using namespace ko;
using testsupport::child;

namespace {

const ENodeType GateType = ENodeType(1100);   ///< with the pages of the host
const ENodeType BeaconType = ENodeType(1101); ///< a device

QString gate()
{
    return "Barrier gate";
}

QString beacon()
{
    return "Beacon";
}

const PropertyFormPage::Field fields[] = {
    {QLatin1String("Lane"), PropertyFormPage::Field::Text, "Lane:"},
};

std::unique_ptr<InspectorPage> createPage(QWidget* parent)
{
    const QVector<PropertyFormPage::Field> all(std::begin(fields), std::end(fields));
    return std::make_unique<PageOf<PropertyFormPage>>(new PropertyFormPage(all, parent));
}

OwnNodeType ownType(ENodeType type, QString (*name)())
{
    OwnNodeType own;
    own.type = type;
    own.name = name;
    return own;
}

} // namespace

/// Node types that this host does not bring with it.
class tst_OwnNodeType : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void badOnesAreRefused_data();
    void badOnesAreRefused();
    void isKnownEverywhere();
    void isAddedAndEdited();
    void deviceHasAnAddress();
    void pluginsThatAreNone();

private:
    std::unique_ptr<testsupport::HostFixture> m_host;
};

void tst_OwnNodeType::initTestCase()
{
    OwnNodeType own = ownType(GateType, gate);
    own.properties = {{QLatin1String("Lane"), QString("1")}};
    QCOMPARE(NodeTypes::declareType(own), QString());
    addPage(GateType, {"general", "General", true, createPage});
    own = ownType(BeaconType, beacon);
    own.isDevice = true;
    QCOMPARE(NodeTypes::declareType(own), QString());
}

void tst_OwnNodeType::init()
{
    m_host.reset(); // before the next, so that there is one database
    m_host = std::make_unique<testsupport::HostFixture>();
}

void tst_OwnNodeType::badOnesAreRefused_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("hasName");
    QTest::addColumn<bool>("hasOneEditor");
    QTest::newRow("one of ours") << int(IPDeviceType) << true << false;
    QTest::newRow("reserved") << 999 << true << false;
    QTest::newRow("all types") << -1 << true << false;
    QTest::newRow("twice") << int(GateType) << true << false;
    QTest::newRow("no name") << 1200 << false << false;
    QTest::newRow("half an editor") << 1200 << true << true;
}

void tst_OwnNodeType::badOnesAreRefused()
{
    QFETCH(int, type);
    QFETCH(bool, hasName);
    QFETCH(bool, hasOneEditor);
    const QList<ENodeType> before = NodeTypes::all();
    OwnNodeType own = ownType(ENodeType(type), hasName ? gate : nullptr);
    if (hasOneEditor)
        own.createEditor = [](const NodeID&, bool, unsigned) -> InspectorWidget* { return nullptr; };
    QVERIFY(!NodeTypes::declareType(own).isEmpty());
    QCOMPARE(NodeTypes::all(), before);
}

void tst_OwnNodeType::isKnownEverywhere()
{
    QVERIFY(NodeTypes::all().contains(GateType));
    QVERIFY(NodeTypes::canBeAdded(GateType));
    QVERIFY(!NodeTypes::isDevice(GateType));
    QCOMPARE(m_host->db()->readableNodeTypeName(GateType), QString("Barrier gate"));
    const auto names = m_host->db()->readableNodeTypeNames(nullptr, true);
    QVERIFY(names.contains({GateType, "Barrier gate"}));
    QVERIFY(!NodeTypes::icon(GateType).isNull());
    QVERIFY(!m_host->db()->nodeDriver(GateType).null());
    QVERIFY(m_host->db()->nodeDriver(ENodeType(1200)).null());
}

void tst_OwnNodeType::isAddedAndEdited()
{
    const QList<ENodeType> types = {GateType};
    AddNodeDialog add(this, nullptr, &types, true, 0);
    QCOMPARE(child<QLineEdit>(&add, "Lane")->text(), QString("1"));
    child<QLineEdit>(&add, "nameLineEdit")->setText("North");
    child<QDialogButtonBox>(&add, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    const QString id = add.nodeId();
    QCOMPARE(m_host->db()->node(id)->name(), QString("North"));
    {
        EditNodeDialog dialog(id, nullptr, false, 0, nullptr);
        child<QLineEdit>(&dialog, "Lane")->setText("2");
        child<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    }
    m_host->reopen();
    QCOMPARE(m_host->db()->node(id)->type, GateType);
    QCOMPARE(m_host->db()->node(id)->stringProperty("Lane", QString()), QString("2"));
}

void tst_OwnNodeType::deviceHasAnAddress()
{
    const QString id = m_host->add(BeaconType, "Beacon", "10.0.0.9");
    const auto device = m_host->db()->node(id).cast<const IPDeviceNode>();
    QVERIFY(!device.null());
    QCOMPARE(device->address(), QString("10.0.0.9"));
    QCOMPARE(m_host->db()->summary(id).location, QString("10.0.0.9"));
}

/// A folder may hold anything; what is not a library is passed over.
void tst_OwnNodeType::pluginsThatAreNone()
{
    QTemporaryDir folder;
    QCOMPARE(NodeTypePlugins::load(folder.filePath("not there")), QStringList());
    for (const char* name : {"broken.so", "readme.txt"}) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no library");
    }
    const QString foreign = QLatin1String(KO_HOST_LIBRARY); // a library of the toolkit's, but no plugin
    QVERIFY(QFile::copy(foreign, folder.filePath("foreign.so")));
    const QStringList problems = NodeTypePlugins::load(folder.path());
    QCOMPARE(problems.size(), 2);
    QVERIFY(problems.at(0).startsWith(folder.filePath("broken.so")));
    QVERIFY(problems.at(1).startsWith(folder.filePath("foreign.so")));
}

KO_TEST_MAIN(tst_OwnNodeType)
#include "tst_ownnodetype.moc"
