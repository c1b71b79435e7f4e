#include "WindowFixture.h"
#include "support/TestMain.h"

#include "drivers/NodeTypePlugin.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

namespace {

const char domeName[] = "Dome Camera";
const ENodeType DomeType = ENodeType(1000);

} // namespace

/// The example of a driver, as the plugin that brings it into the client.
class tst_NodeTypePlugin : public QObject, private testsupport::WindowFixture
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void isLoadedOnce();
    void isAddedInTheWindow();
    void isFoundByItsType();
    void clientSaysWhatItCannotLoad();
};

void tst_NodeTypePlugin::initTestCase()
{
    QCOMPARE(NodeTypes::readableName(DomeType), QString("Node of type 1000"));
    QCOMPARE(NodeTypePlugins::load(QFileInfo(KO_DOME_PLUGIN).path()), QStringList());
}

void tst_NodeTypePlugin::init()
{
    openWindow();
}

void tst_NodeTypePlugin::cleanup()
{
    closeWindow();
}

void tst_NodeTypePlugin::isLoadedOnce()
{
    const QStringList problems = NodeTypePlugins::load(QFileInfo(KO_DOME_PLUGIN).path());
    QCOMPARE(problems.size(), 1);
    QVERIFY2(problems.first().contains("1000"), qPrintable(problems.first()));
}

void tst_NodeTypePlugin::isAddedInTheWindow()
{
    const ModalAnswer adds([](QDialog* dialog) {
        auto* types = child<QComboBox>(dialog, "nodeTypeComboBox");
        const int dome = types->findText(domeName);
        QVERIFY(dome >= 0);
        types->setCurrentIndex(dome);
        QTest::keyClicks(child<QLineEdit>(dialog, "nameLineEdit"), "North dome");
        child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    });
    trigger("actionAdd");
    QVERIFY(adds.fired());
    const QString id = idOf("North dome");
    QCOMPARE(m_host->db()->summary(id).type, DomeType);
    m_view->selectNode(id);
    const ModalAnswer edits([](QDialog* dialog) {
        child<QLineEdit>(dialog, "nameLineEdit")->setText("South dome");
        child<QComboBox>(dialog, "typeComboBox")->setCurrentIndex(2); // a page of the library
        child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    });
    trigger("actionEdit");
    QVERIFY(edits.fired());
    m_host->db()->flush();
    QCOMPARE(m_host->db()->node(id)->name(), QString("South dome"));
    QVERIFY(m_host->db()->node(id)->intProperty("RotorControl", 0) != 0);
}

void tst_NodeTypePlugin::isFoundByItsType()
{
    m_host->add(DomeType, "West");
    m_window->applyChanges();
    m_window->find("type:dome");
    QCOMPARE(m_window->findChild<NodeListModel*>()->rowCount(), 1);
    QVERIFY(child<QComboBox>(m_window.get(), "typeComboBox")->findText(domeName) > 0);
}

/// And goes on without it.
void tst_NodeTypePlugin::clientSaysWhatItCannotLoad()
{
    QTemporaryDir folder;
    QFile broken(folder.filePath("broken.so"));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("no library");
    broken.close();
    QProcess client;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("KONODEUI_NODE_TYPES", folder.path());
    client.setProcessEnvironment(environment);
    client.start(KO_KOCLIENT, {"--db", folder.filePath("a.kodb"), "--export", "/dev/stdout"});
    QVERIFY(client.waitForFinished());
    QCOMPARE(client.exitCode(), 0);
    QVERIFY(client.readAllStandardError().contains("broken.so"));
}

KO_TEST_MAIN(tst_NodeTypePlugin)
#include "tst_nodetypeplugin.moc"
