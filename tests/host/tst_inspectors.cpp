#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/TestMain.h"

#include "audit/AuditLog.h"
#include "dialogs/EditNodeDialog.h"
#include "dialogs/NodeDialog.h"
#include "drivers/HostHint.h"
#include "drivers/InspectorPages.h"
#include "inspector/IPDeviceInspectorWidget.h"
#include "pages/PTZUrlsWidget.h"
#include "utils/NodeDBUtils.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace ko;
using testsupport::child;

namespace {

QString text(const char* literal)
{
    return QString::fromLatin1(literal);
}

/// What pages write on every accept, whatever the user did (the rest must stay as it was).
const char* const alwaysWritten[] = {"CredentialsEntered", "User",      "Password",
                                     "ControlMode",        "Bandwidth", "MACAddress"};

/// Fields that a page leaves open for editing in its read-only mode.
const char* const neverReadOnly[] = {"addressSpinBox", "zoomDirectCheckBox"};

template <class Names>
bool isAmong(const Names& names, const QString& name)
{
    return std::any_of(std::begin(names), std::end(names),
                       [&name](const char* each) { return name == QLatin1String(each); });
}

/// The fields of a page in the order of the tab key, starting at the first.
QList<QWidget*> tabChain(QWidget* page)
{
    QList<QWidget*> chain;
    for (QWidget* widget = page->nextInFocusChain(); widget != page; widget = widget->nextInFocusChain()) {
        const bool inside = page->isAncestorOf(widget) && widget->focusPolicy() & Qt::TabFocus;
        const bool inner = qobject_cast<QAbstractSpinBox*>(widget->parentWidget()) ||
                           qobject_cast<QComboBox*>(widget->parentWidget());
        if (inside && !inner && widget->isVisibleTo(page))
            chain.append(widget);
    }
    return chain;
}

} // namespace

class tst_Inspectors : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void tabsAndPages_data();
    void tabsAndPages();
    void renameIsLoggedBeforeChange();
    void readOnlyInspectorWritesNothing();
    void pagesAreAcceptedInOneUpdate();
    void typedTextSurvivesForeignChange();
    void untouchedFieldsFollowForeignChange();
    void audioPathFollowsForeignChange();
    void shownLocationFollowsForeignChange();
    void applyMakesFieldsFollowAgain();
    void removedNodeIsSaid();
    void updateNodeRefreshes();
    void nameFollowsAddressUntilTyped();
    void sslTogglesDefaultPort();
    void storedPortIsNoDefault();

    void pageContract_data();
    void pageContract();

private:
    QString add(ENodeType type, const QString& name, const QString& address = QString());
    QString addOfAnyType(ENodeType type);
    std::unique_ptr<InspectorWidget> inspect(const QString& id, bool readOnly = false);
    void changeElsewhere(const QString& id, const std::function<void(IPDeviceNode*)>& change);
    QStringList loggedCodes();

    std::unique_ptr<testsupport::HostFixture> m_host;
    HostNodeDB* m_db = nullptr;
};

void tst_Inspectors::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_db = m_host->db();
}

void tst_Inspectors::cleanup()
{
    m_host.reset();
}

QString tst_Inspectors::add(ENodeType type, const QString& name, const QString& address)
{
    return m_host->add(type, name, address);
}

/// Also of the types that no user adds.
QString tst_Inspectors::addOfAnyType(ENodeType type)
{
    if (NodeTypes::canBeAdded(type))
        return add(type, text("Gate"), text("10.0.0.1"));
    if (type == RecordingTransponderType) {
        const QString camera = add(IPDeviceType, text("Gate"), text("10.0.0.1"));
        m_host->change(
            camera, [](Node* node) { node->setBoolProperty(PropertyKeys::UseRecordingTransponder, true); });
    } else {
        PlainHint hint(type);
        hint.setName(text("Gate"));
        m_db->newNodeHint(hint);
    }
    return m_db->nodeIdList(type).value(0);
}

std::unique_ptr<InspectorWidget> tst_Inspectors::inspect(const QString& id, bool readOnly)
{
    return std::unique_ptr<InspectorWidget>(
        m_db->node(id)->createInspectorWidget(readOnly, NodeDialog::FillLayoutLists));
}

void tst_Inspectors::changeElsewhere(const QString& id, const std::function<void(IPDeviceNode*)>& change)
{
    m_host->change(id, [&change](Node* node) { change(dynamic_cast<IPDeviceNode*>(node)); });
}

QStringList tst_Inspectors::loggedCodes()
{
    QStringList codes;
    const auto records = m_db->auditLog().entries(0, 100, true);
    for (const AuditRecord& record : records)
        codes.prepend(record.code.toString()); // newest first
    return codes;
}

void tst_Inspectors::tabsAndPages_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("tabs");
    const QStringList camera = {text("general"),    text("device"), text("layoutOptions"),
                                text("recordings"), text("ptz"),    text("proxy")};
    QTest::newRow("camera") << 2 << camera;
    QTest::newRow("channel device") << 5 << camera;
    QTest::newRow("url camera") << 3
                                << QStringList({text("general"), text("ptz"), text("device"),
                                                text("layoutOptions"), text("recordings"), text("proxy")});
    QTest::newRow("folder") << 0 << QStringList(text("general"));
    QTest::newRow("view") << 1 << QStringList({text("general"), text("nodes")});
}

void tst_Inspectors::tabsAndPages()
{
    QFETCH(int, type);
    QFETCH(QStringList, tabs);
    const std::unique_ptr<InspectorWidget> inspector = inspect(add(ENodeType(type), text("n")));
    auto* tabWidget = child<QTabWidget>(inspector.get(), "tabWidget");
    QStringList found;
    for (int i = 0; i < tabWidget->count(); ++i) {
        found.append(tabWidget->widget(i)->objectName());
        QVERIFY(!tabWidget->tabText(i).isEmpty());
        if (found.last() == text("layoutOptions"))
            child<LayoutOptionsWidget>(tabWidget->widget(i), "layoutOptionsWidget");
    }
    QCOMPARE(found, tabs);
    QCOMPARE(qobject_cast<IPDeviceInspectorWidget*>(inspector.get()) != nullptr,
             NodeTypes::isDevice(ENodeType(type)));
}

void tst_Inspectors::renameIsLoggedBeforeChange()
{
    const QString id = add(IPDeviceType, text("Gate"), text("10.0.0.1"));
    const std::unique_ptr<InspectorWidget> inspector = inspect(id);
    inspector->ok();
    QCOMPARE(loggedCodes(), QStringList(text("NChg")));
    child<QLineEdit>(inspector.get(), "nameLineEdit")->setText(text("Yard"));
    inspector->ok();
    QCOMPARE(loggedCodes(), QStringList({text("NChg"), text("NRen"), text("NChg")}));
    const auto records = m_db->auditLog().entries(0, 2, true);
    QCOMPARE(records.at(1).entry->text(), text("Changed name of device from Gate to Yard."));
    QCOMPARE(records.at(0).entry->text(), text("Changed properties of device with name Yard."));
    QCOMPARE(m_db->node(id)->name(), text("Yard"));
}

void tst_Inspectors::readOnlyInspectorWritesNothing()
{
    const QString id = add(IPDeviceType, text("Gate"), text("10.0.0.1"));
    QSignalSpy updated(m_db, SIGNAL(nodeUpdated(ko::NodeID)));
    const std::unique_ptr<InspectorWidget> inspector = inspect(id, true);
    QVERIFY(child<QLineEdit>(inspector.get(), "nameLineEdit")->isReadOnly());
    QVERIFY(child<QLineEdit>(inspector.get(), "addressLineEdit")->isReadOnly());
    child<QLineEdit>(inspector.get(), "nameLineEdit")->setText(text("Yard"));
    inspector->ok();
    QCOMPARE(updated.count(), 0);
    QVERIFY(loggedCodes().isEmpty());
    QCOMPARE(m_db->node(id)->name(), text("Gate"));
}

void tst_Inspectors::pagesAreAcceptedInOneUpdate()
{
    const QString id = add(IPDeviceType, text("Gate"), text("10.0.0.1"));
    const std::unique_ptr<InspectorWidget> inspector = inspect(id);
    child<QLineEdit>(inspector.get(), "nameLineEdit")->setText(text("Yard"));
    child<QLineEdit>(inspector.get(), "addressLineEdit")->setText(text("10.0.0.2"));
    child<QRadioButton>(inspector.get(), "smoothDisplayRadioButton")->setChecked(true);
    QSignalSpy updated(m_db, SIGNAL(nodeUpdated(ko::NodeID)));
    inspector->ok();
    QCOMPARE(updated.count(), 1);
    const kom::smart<const Node> node = m_db->node(id);
    QCOMPARE(node->name(), text("Yard"));
    QCOMPARE(node.cast<const IPDeviceNode>()->address(), text("10.0.0.2"));
    QCOMPARE(node->intProperty(text("SmoothDisplay"), 0), 2);
}

void tst_Inspectors::typedTextSurvivesForeignChange()
{
    const QString id = add(IPDeviceType, text("Gate"), text("10.0.0.1"));
    const std::unique_ptr<InspectorWidget> inspector = inspect(id);
    inspector->show();
    QLineEdit* address = child<QLineEdit>(inspector.get(), "addressLineEdit");
    QTest::keyClicks(address, text("0"));
    QCOMPARE(address->text(), text("10.0.0.10"));
    changeElsewhere(id, [](IPDeviceNode* camera) { camera->setAddress(text("10.9.9.9")); });
    QCOMPARE(address->text(), text("10.0.0.10"));
    inspector->ok();
    QCOMPARE(m_db->node(id).cast<const IPDeviceNode>()->address(), text("10.0.0.10"));
}

void tst_Inspectors::untouchedFieldsFollowForeignChange()
{
    const QString id = add(IPDeviceType, text("Gate"), text("10.0.0.1"));
    const std::unique_ptr<InspectorWidget> inspector = inspect(id);
    inspector->show();
    child<QLineEdit>(inspector.get(), "nameLineEdit")->setText(text("Yard"));
    changeElsewhere(id, [](IPDeviceNode* camera) {
        camera->setPort(8443);
        camera->setUseSSL(true);
        camera->setIntProperty(text("SmoothDisplay"), 2);
        camera->setStringProperty(text("InfoFile"), text("/guard.html"));
    });
    QCOMPARE(child<QSpinBox>(inspector.get(), "portSpinBox")->value(), 8443);
    QVERIFY(child<QCheckBox>(inspector.get(), "sslCheckBox")->isChecked());
    QVERIFY(child<QRadioButton>(inspector.get(), "smoothDisplayRadioButton")->isChecked());
    QCOMPARE(child<QLineEdit>(inspector.get(), "instructionFileLineEdit")->text(), text("/guard.html"));
    QCOMPARE(child<QLineEdit>(inspector.get(), "nameLineEdit")->text(), text("Yard"));

    inspector->ok();
    const kom::smart<const IPDeviceNode> camera = m_db->node(id).cast<const IPDeviceNode>();
    QCOMPARE(camera->name(), text("Yard"));
    QCOMPARE(camera->port(), 8443);
    QCOMPARE(camera->intProperty(text("SmoothDisplay"), 0), 2);
}

void tst_Inspectors::audioPathFollowsForeignChange()
{
    const QString id = add(IPDeviceType, text("Gate"), text("10.0.0.1"));
    const QString other = add(IPDeviceType, text("Yard"), text("10.0.0.2"));
    EditNodeDialog dialog(id, nullptr, false, 0x20, nullptr);
    dialog.show();
    QComboBox* audio = child<QComboBox>(&dialog, "audioPathIdComboBox");
    QCOMPARE(audio->currentText(), text("Self"));
    const QString third = add(IPDeviceType, text("Dock"), text("10.0.0.3")); // not in the list yet
    changeElsewhere(
        id, [&third](IPDeviceNode* camera) { camera->setStringProperty(text("AudioPathID"), third); });
    QCOMPARE(audio->currentData().toString(), third);
    QCOMPARE(audio->count(), 3);
    QVERIFY(audio->findData(other) > 0);
}

void tst_Inspectors::shownLocationFollowsForeignChange()
{
    const QString id = add(IPDeviceType, text("Gate"), text("10.0.0.1"));
    const std::unique_ptr<InspectorWidget> inspector = inspect(id);
    inspector->show();
    const QLabel* location = child<QLabel>(inspector.get(), "storageLocationLabel");
    QCOMPARE(location->text(), text("Via camera"));
    QString folder;
    NodeDBUtils::configurePlayerSource(id, 2, true, folder, text("//srv/gate"), QString(), QString());
    QCOMPARE(location->text(), text("//srv/gate (KoTandem)"));
}

void tst_Inspectors::applyMakesFieldsFollowAgain()
{
    const QString id = add(IPDeviceType, text("Gate"), text("10.0.0.1"));
    const std::unique_ptr<InspectorWidget> inspector = inspect(id);
    inspector->show();
    QLineEdit* name = child<QLineEdit>(inspector.get(), "nameLineEdit");
    name->setText(text("Yard"));
    inspector->ok();
    changeElsewhere(id, [](IPDeviceNode* camera) { camera->setStringProperty(text("Name"), text("Dock")); });
    QCOMPARE(name->text(), text("Dock"));
}

void tst_Inspectors::removedNodeIsSaid()
{
    const QString id = add(IPDeviceType, text("Gate"), text("10.0.0.1"));
    const std::unique_ptr<InspectorWidget> inspector = inspect(id);
    inspector->show();
    QLabel* gone = child<QLabel>(inspector.get(), "goneLabel");
    m_db->removeNode(add(IPDeviceType, text("Other"), text("10.0.0.2")));
    QVERIFY(!gone->isVisible());
    m_db->removeNode(id);
    QVERIFY(gone->isVisible());
    inspector->ok();
    QVERIFY(loggedCodes().isEmpty());
}

void tst_Inspectors::updateNodeRefreshes()
{
    const QString id = add(IPDeviceType, text("Gate"), text("10.0.0.1"));
    const std::unique_ptr<InspectorWidget> inspector = inspect(id);
    inspector->blockSignals(true);
    QLineEdit* name = child<QLineEdit>(inspector.get(), "nameLineEdit");
    QVERIFY(disconnect(m_db, SIGNAL(nodeUpdated(ko::NodeID)), inspector.get(), nullptr));
    changeElsewhere(id, [](IPDeviceNode* camera) { camera->setStringProperty(text("Name"), text("Dock")); });
    QCOMPARE(name->text(), text("Gate"));
    inspector->updateNode();
    QCOMPARE(name->text(), text("Dock"));
}

void tst_Inspectors::nameFollowsAddressUntilTyped()
{
    kom::smart<INodeDriverComponent> driver = NodeTypes::driver(IPDeviceType);
    const kom::smart<NodeHint> hint = driver->createNodeHint(IPDeviceType);
    const std::unique_ptr<InspectorWidget> inspector(driver->createInspectorWidget(hint.get(), 0));
    QLineEdit* name = child<QLineEdit>(inspector.get(), "nameLineEdit");
    QLineEdit* address = child<QLineEdit>(inspector.get(), "addressLineEdit");
    QTest::keyClicks(address, text("10.0"));
    QCOMPARE(name->text(), text("10.0"));
    QTest::keyClicks(name, text("x"));
    QTest::keyClicks(address, text(".1.1"));
    QCOMPARE(name->text(), text("10.0x"));
    name->selectAll();
    QTest::keyClick(name, Qt::Key_Delete); // an emptied name is not a name
    QTest::keyClicks(address, text("2"));
    QCOMPARE(name->text(), text("10.0.1.12"));
    inspector->ok();
    QCOMPARE(hint->name(), text("10.0.1.12"));
    QCOMPARE(hint.cast<NodeHintIPDevice>()->address, text("10.0.1.12"));
    QVERIFY(!inspector->findChild<LayoutOptionsWidget*>());
}

void tst_Inspectors::sslTogglesDefaultPort()
{
    const std::unique_ptr<InspectorWidget> inspector =
        inspect(add(IPDeviceType, text("Gate"), text("10.0.0.1")));
    inspector->show();
    QSpinBox* port = child<QSpinBox>(inspector.get(), "portSpinBox");
    QCheckBox* ssl = child<QCheckBox>(inspector.get(), "sslCheckBox");
    QCOMPARE(port->value(), 80);
    ssl->click();
    QCOMPARE(port->value(), 443);
    ssl->click();
    QCOMPARE(port->value(), 80);
    port->setValue(8080);
    ssl->click();
    QCOMPARE(port->value(), 8080);
}

void tst_Inspectors::storedPortIsNoDefault()
{
    const QString id = add(IPDeviceType, text("Gate"), text("10.0.0.1"));
    changeElsewhere(id, [](IPDeviceNode* camera) { camera->setUseSSL(true); }); // SSL on port 80
    QCOMPARE(child<QSpinBox>(inspect(id).get(), "portSpinBox")->value(), 80);
}

void tst_Inspectors::pageContract_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("index");
    const QList<ENodeType> types = NodeTypes::all();
    for (const ENodeType type : types) {
        const int count = pagesOf(type).count();
        for (int i = 0; i < count; ++i)
            QTest::addRow("type %d, page %d", int(type), i) << int(type) << i;
    }
}

void tst_Inspectors::pageContract()
{
    QFETCH(int, type);
    QFETCH(int, index);
    const ENodeType nodeType = ENodeType(type);
    const QString id = addOfAnyType(nodeType);
    QVERIFY(!id.isEmpty());
    const PageSpec spec = pagesOf(nodeType).at(index);

    // Filled and written back, nothing changes but what is always written.
    {
        QWidget parent;
        const std::unique_ptr<InspectorPage> page = spec.create(&parent);
        page->init(id);
        page->fillLike(*page);
        const kogen::PropertySet before = m_db->node(id)->properties();
        Node* node = m_db->beginUpdateNode(id, -1);
        page->accept(node);
        const kogen::PropertySet after = node->properties();
        m_db->endUpdateNode(node);
        for (const auto& entry : after) {
            // Two variants with sets are never equal by themselves.
            const bool same = before.contains(entry.first) &&
                              PropertyList::sameValue(before[entry.first]->value(), entry.second->value());
            const bool unfilled =
                entry.first == text("PreferredLayout") || entry.first == text("AudioPathID");
            QVERIFY2(same || unfilled || isAmong(alwaysWritten, entry.first), qPrintable(entry.first));
        }
        for (const auto& entry : before)
            QVERIFY2(after.contains(entry.first), qPrintable(entry.first));
    }
    // A node that is not there leaves the form alone; no node writes nothing.
    {
        QWidget parent;
        const std::unique_ptr<InspectorPage> page = spec.create(&parent);
        page->init(id);
        page->init(text("no such node"));
        const QList<QLineEdit*> lineEdits = page->widget()->findChildren<QLineEdit*>();
        const std::unique_ptr<InspectorPage> expected = spec.create(&parent);
        expected->init(id);
        for (const QLineEdit* lineEdit : lineEdits) {
            if (!lineEdit->objectName().isEmpty() && lineEdit->objectName() != text("qt_spinbox_lineedit"))
                QCOMPARE(lineEdit->text(),
                         expected->widget()->findChild<QLineEdit*>(lineEdit->objectName())->text());
        }
        page->accept(static_cast<Node*>(nullptr));
    }
    // A hint of another type takes nothing over that is not its own.
    {
        QWidget parent;
        const std::unique_ptr<InspectorPage> page = spec.create(&parent);
        page->init(id);
        const ENodeType other = NodeTypes::isDevice(nodeType) ? ViewType : IPDeviceType;
        const kom::smart<NodeHint> hint = NodeTypes::driver(other)->createNodeHint(other);
        page->accept(hint.get());
        QVERIFY(!hint->hasProperty(text("Address")));
    }
    // Read-only: nothing can be typed, chosen or pressed, and fields lose their frames.
    {
        QWidget parent;
        const std::unique_ptr<InspectorPage> page = spec.create(&parent);
        page->init(id);
        page->setReadOnly(true);
        QList<QWidget*> widgets = page->widget()->findChildren<QWidget*>();
        if (qobject_cast<PTZUrlsWidget*>(page->widget()))
            widgets.clear(); // the one page without a read-only mode
        for (const QWidget* widget : std::as_const(widgets)) {
            if (isAmong(neverReadOnly, widget->objectName()) ||
                isAmong(neverReadOnly, widget->parent()->objectName()))
                continue;
            if (const auto* lineEdit = qobject_cast<const QLineEdit*>(widget)) {
                const bool looksReadOnly = lineEdit->isReadOnly() && !lineEdit->hasFrame();
                QVERIFY2(looksReadOnly || !lineEdit->isEnabled(), qPrintable(lineEdit->objectName()));
            } else if (const auto* spinBox = qobject_cast<const QAbstractSpinBox*>(widget)) {
                const bool looksReadOnly = spinBox->isReadOnly() && !spinBox->hasFrame();
                QVERIFY2(looksReadOnly || !spinBox->isEnabled(), qPrintable(spinBox->objectName()));
            } else if (qobject_cast<const QAbstractButton*>(widget) ||
                       qobject_cast<const QComboBox*>(widget)) {
                QVERIFY2(!widget->isEnabled(), qPrintable(widget->objectName()));
            }
        }
    }
    // The tab key goes through the page in reading order, and every field has a caption.
    {
        QWidget parent;
        const std::unique_ptr<InspectorPage> page = spec.create(&parent);
        page->init(id);
        QWidget* widget = page->widget();
        widget->resize(widget->sizeHint());
        parent.show();
        const QList<QWidget*> chain = tabChain(widget);
        QVERIFY(!chain.isEmpty());
        for (int i = 1; i < chain.size(); ++i) {
            const QPoint previous = chain.at(i - 1)->mapTo(widget, chain.at(i - 1)->rect().center());
            const QPoint next = chain.at(i)->mapTo(widget, chain.at(i)->rect().center());
            const bool sameRow = std::abs(previous.y() - next.y()) < 8;
            QVERIFY2(sameRow ? previous.x() < next.x() : previous.y() < next.y(),
                     qPrintable(chain.at(i)->objectName()));
        }
        QList<const QWidget*> captioned;
        const QList<QLabel*> labels = widget->findChildren<QLabel*>();
        for (const QLabel* label : labels)
            captioned.append(label->buddy());
        for (const QWidget* field : chain) {
            const bool saysItself = qobject_cast<const QAbstractButton*>(field) != nullptr;
            QVERIFY2(saysItself || captioned.contains(field) || !field->accessibleName().isEmpty(),
                     qPrintable(field->objectName()));
        }
    }
}

KO_TEST_MAIN(tst_Inspectors)
#include "tst_inspectors.moc"
