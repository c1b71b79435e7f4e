#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "AddressChangesDialog.h"
#include "AuditLogDialog.h"
#include "FocusMark.h"
#include "ImportReportDialog.h"
#include "LayoutAdapter.h"
#include "MainWindow.h"
#include "PreferencesDialog.h"
#include "audit/AuditLog.h"
#include "audit/NodeLogEntries.h"
#include "dialogs/AddNodeDialog.h"
#include "dialogs/EditNodeDialog.h"
#include "dialogs/EnvironmentDialog.h"
#include "dialogs/GenericNodeViewer.h"
#include "dialogs/NetworkProxyDialog.h"
#include "dialogs/NodeAuthenticateDialog.h"
#include "dialogs/NodeDBViewer.h"
#include "dialogs/NodeOverviewDialog.h"
#include "dialogs/RecordingFolderAssignmentDialog.h"
#include "dialogs/RecordingFolderMassAssignmentDialog.h"
#include "dialogs/RecordingTransponderCustomSettingsDialog.h"
#include "discovery/DeviceIntake.h"
#include "discovery/Scanners.h"
#include "ko/Environments.h"
#include "ko/dialogFlags.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>

#include <algorithm>
#include <functional>

using namespace ko;
using testsupport::child;

namespace {

const unsigned clientFlags = 17 | 0x80 | 0x20; // as the client opens the dialogs of nodes

QString describe(const QWidget* widget)
{
    if (!widget)
        return QStringLiteral("nothing");
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    const QString name = widget->objectName().isEmpty() && button ? button->text() : widget->objectName();
    return QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') + name;
}

QStringList describe(const QList<QWidget*>& widgets)
{
    QStringList texts;
    for (const QWidget* widget : widgets)
        texts.append(describe(widget));
    return texts;
}

/// The controls that a user of the keyboard must reach, in no order.
QList<QWidget*> controls(const QWidget* window)
{
    QList<QWidget*> found;
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (widget->window() == window && widget->isVisible() && widget->isEnabled() &&
            (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy())
            found.append(widget);
    }
    return found;
}

/// Presses the key until the focus is somewhere else: a list may take it from row to row first.
QWidget* next(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget* const before = QApplication::focusWidget();
    for (int presses = 0; presses < 20 && before && QApplication::focusWidget() == before; ++presses)
        QTest::keyClick(before, key, modifiers);
    return QApplication::focusWidget();
}

/// Goes on until the focus is back where it was; each control that had it, in that order.
QList<QWidget*> round(const QWidget* window, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QList<QWidget*> stops;
    const QWidget* const first = QApplication::focusWidget();
    const int limit = 2 * int(controls(window).size());
    while (stops.size() < limit && (stops.isEmpty() || stops.constLast() != first))
        stops.append(next(key, modifiers));
    return stops;
}

/// Both rounds end where they began.
QList<QWidget*> reversed(QList<QWidget*> stops)
{
    if (!stops.isEmpty())
        std::reverse(stops.begin(), stops.end() - 1);
    return stops;
}

QImage picture(QWidget* widget)
{
    // What marks some controls lies around them.
    QWidget* window = widget->window();
    const QRect place(widget->mapTo(window, QPoint()), widget->size());
    return window->grab(place.adjusted(-4, -4, 4, 4)).toImage();
}

/// Stops of which nothing tells that they have the focus.
QStringList withoutMark(const QList<QWidget*>& stops)
{
    QStringList names;
    for (QWidget* stop : stops) {
        stop->setFocus(Qt::TabFocusReason);
        const QImage with = picture(stop);
        stop->clearFocus();
        if (picture(stop) == with)
            names.append(describe(stop));
    }
    return names;
}

QStringList withoutName(const QList<QWidget*>& stops)
{
    QStringList names;
    for (QWidget* stop : stops) {
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(stop);
        // The name of a combo box is what it shows; only a label tells what that is.
        const bool needsLabel = qobject_cast<QComboBox*>(stop);
        const bool isKnown = interface && interface->isValid() && interface->role() != QAccessible::NoRole;
        if (!isKnown || interface->text(QAccessible::Name).trimmed().isEmpty() ||
            (needsLabel && interface->relations(QAccessible::Label).isEmpty()))
            names.append(describe(stop));
    }
    return names;
}

} // namespace

Q_DECLARE_METATYPE(std::function<std::unique_ptr<QWidget>()>)

/// Every window with the keyboard alone. Only pressed keys show where Tab really goes: the chain of the
/// toolkit has members that it passes over and members that hand the focus on.
class tst_Keyboard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_host.reset(); }

    void everyControlIsReached_data();
    void everyControlIsReached();
    void filterOfTheOverview();
    void everyPageIsReached_data();
    void everyPageIsReached();
    void viewersByKeys();
    void enterAcceptsNoAddress();

private:
    typedef std::function<std::unique_ptr<QWidget>()> Maker;

    void addRow(const QString& name, const Maker& make) { QTest::newRow(qPrintable(name)) << make; }
    void addDialogs();
    void addRecordingDialogs();
    void addViewers();
    void addEditors();
    std::unique_ptr<EditNodeDialog> editor(const QString& id, bool readOnly) const;
    static void activate(QWidget* window);
    static void check(QWidget* window);

    std::unique_ptr<testsupport::HostFixture> m_host;
    LayoutAdapter m_layouts;
    QMap<ENodeType, QString> m_nodes; ///< one of each type
    QStringList m_cameras;
};

void tst_Keyboard::initTestCase()
{
    QApplication::setCursorFlashTime(0); // pictures are compared
    new FocusMark(this);                 // as the client's window has it
    m_host = std::make_unique<testsupport::HostFixture>();
    HostNodeDB* db = m_host->db();
    db->environments().setList({{"{h}", "Home"}, {"{o}", "Office"}});
    db->setActiveEnvironment("{h}");
    const QList<ENodeType> types = NodeTypes::all();
    for (const ENodeType type : types) {
        if (NodeTypes::canBeAdded(type))
            m_nodes.insert(type, m_host->add(type, NodeTypes::readableName(type), "10.0.0.1"));
    }
    m_cameras = QStringList({m_nodes.value(IPDeviceType), m_host->add(IPDeviceType, "Yard", "10.0.0.2")});
    const QString mac = "00:11:22:33:44:01";
    m_host->change(m_cameras.last(),
                   [&mac](Node* node) { dynamic_cast<IPDeviceNode*>(node)->setMacAddress(MACAddress(mac)); });
    DiscoveredDevice moved;
    moved.name = "Yard";
    moved.address = "10.0.9.1";
    moved.macAddress = mac;
    Scanners::of(*db).intake().take({moved});
    KO_TRY_COMPARE(int(Scanners::of(*db).intake().addressChanges().size()), 1);
    for (int i = 0; i < 5; ++i)
        db->auditLog().log(NodeLogEntry(NodeLogEntry::Added, QString("Entry %1").arg(i)));
}

std::unique_ptr<EditNodeDialog> tst_Keyboard::editor(const QString& id, bool readOnly) const
{
    return std::make_unique<EditNodeDialog>(id, nullptr, readOnly, clientFlags, &m_layouts);
}

void tst_Keyboard::addDialogs()
{
    HostNodeDB* db = m_host->db();
    addRow("main window", [db] { return std::make_unique<MainWindow>(*db); });
    addRow("preferences", [db] { return std::make_unique<PreferencesDialog>(*db, nullptr); });
    addRow("audit log", [db] { return std::make_unique<AuditLogDialog>(db->auditLog(), nullptr); });
    addRow("network proxy", [] {
        auto dialog = std::make_unique<NetworkProxyDialog>(nullptr, dialogFlags(false));
        child<QGroupBox>(dialog.get(), "proxyGroupBox")->setChecked(true);
        return dialog;
    });
    addRow("environments", [] { return std::make_unique<EnvironmentDialog>(nullptr); });
    addRow("overview", [this] {
        auto dialog = std::make_unique<NodeOverviewDialog>(nullptr);
        m_host->add(IPDeviceType, "Found", "found.example.org");
        return dialog;
    });
    addRow("user and password",
           [this] { return std::make_unique<NodeAuthenticateDialog>(nullptr, m_cameras, Qt::Dialog); });
}

void tst_Keyboard::addRecordingDialogs()
{
    for (const char* usage : {"cameraRadioButton", "specificFileServerPathRadioButton"})
        addRow(QString("recordings of many, %1").arg(usage), [this, usage] {
            auto dialog =
                std::make_unique<RecordingFolderMassAssignmentDialog>(nullptr, m_cameras, Qt::Dialog);
            child<QRadioButton>(dialog.get(), usage)->setChecked(true);
            child<QLineEdit>(dialog.get(), "pathLineEdit")->setText("/");
            return dialog;
        });
    addRow("recordings of one",
           [this] { return std::make_unique<RecordingFolderAssignmentDialog>(m_cameras.first(), nullptr); });
    addRow("recordings of one, with folders", [this] {
        auto dialog = std::make_unique<RecordingFolderAssignmentDialog>(m_cameras.first(), nullptr);
        child<QRadioButton>(dialog.get(), "cameraFileserverPathRadioButton")->click();
        child<QPushButton>(dialog.get(), "moreButton")->click();
        child<QCheckBox>(dialog.get(), "recordingTransponderCheckBox")->setChecked(true);
        return dialog;
    });
    addRow("remote preview", [this] {
        auto dialog = std::make_unique<RecordingTransponderCustomSettingsDialog>(
            m_nodes.value(RecordingTransponderType), nullptr);
        const auto boxes = dialog->findChildren<QCheckBox*>();
        for (QCheckBox* box : boxes) {
            if (!box->isChecked())
                box->click();
        }
        return dialog;
    });
}

void tst_Keyboard::addViewers()
{
    addRow("node database", [] { return std::make_unique<NodeDBViewer>(); });
    addRow("everything of a node",
           [this] { return std::make_unique<GenericNodeViewer>(m_cameras.first(), nullptr); });
    addRow("seen addresses", [this] {
        auto dialog = std::make_unique<AddressChangesDialog>(Scanners::of(*m_host->db()).intake());
        child<QTableWidget>(dialog.get(), "changesTableWidget")->selectRow(0);
        return dialog;
    });
    addRow("import report", [] {
        CameraSurvey::ImportResult result;
        result.badLines.append({1, "no address"});
        return std::make_unique<ImportReportDialog>(result, nullptr);
    });
}

void tst_Keyboard::addEditors()
{
    for (auto node = m_nodes.cbegin(); node != m_nodes.cend(); ++node) {
        const QString name = NodeTypes::readableName(node.key());
        const int tabs = editor(node.value(), false)->findChild<QTabWidget*>()->count();
        for (int tab = 0; tab < tabs; ++tab) {
            for (const bool readOnly : {false, true})
                addRow(QString("%1 %2, page %3").arg(readOnly ? "show" : "edit", name).arg(tab),
                       [this, id = node.value(), readOnly, tab] {
                           auto dialog = editor(id, readOnly);
                           dialog->findChild<QTabWidget*>()->setCurrentIndex(tab);
                           return dialog;
                       });
        }
        addRow(QString("add %1").arg(name), [type = node.key()] {
            const QList<ENodeType> types = {RecordingFolderType, type};
            auto dialog = std::make_unique<AddNodeDialog>(nullptr, nullptr, &types, false, clientFlags);
            child<QComboBox>(dialog.get(), "nodeTypeComboBox")->setCurrentIndex(1);
            return dialog;
        });
    }
}

void tst_Keyboard::activate(QWidget* window)
{
    QApplication::setActiveWindow(window);
    QVERIFY(QTest::qWaitForWindowActive(window));
    QCoreApplication::processEvents();
}

/// The keys must go through all controls, each of them once, and the other way back.
void tst_Keyboard::check(QWidget* window)
{
    activate(window);
    if (!QApplication::focusWidget() || QApplication::focusWidget()->window() != window)
        QTest::keyClick(window, Qt::Key_Tab);
    const QList<QWidget*> forwards = round(window, Qt::Key_Tab, {});
    const QList<QWidget*> backwards = round(window, Qt::Key_Backtab, Qt::ShiftModifier);
    const QList<QWidget*> all = controls(window);
    QStringList missed;
    for (QWidget* control : all) {
        if (!forwards.contains(control))
            missed.append(describe(control));
    }
    const QString way = describe(forwards).join(", ");
    QVERIFY2(missed.isEmpty(), qPrintable(missed.join(", ") + " missed; the way: " + way));
    QVERIFY2(forwards.size() == all.size(), qPrintable("not once each: " + way));
    QCOMPARE(describe(backwards), describe(reversed(forwards)));
    QCOMPARE(withoutName(forwards).join(", "), QString());
    QCOMPARE(withoutMark(forwards).join(", "), QString());
}

void tst_Keyboard::everyControlIsReached_data()
{
    QTest::addColumn<Maker>("make");
    addDialogs();
    addRecordingDialogs();
    addViewers();
    addEditors();
}

void tst_Keyboard::everyControlIsReached()
{
    QFETCH(Maker, make);
    const std::unique_ptr<QWidget> window = make();
    window->show();
    check(window.get());
}

void tst_Keyboard::filterOfTheOverview()
{
    NodeOverviewDialog overview;
    overview.show();
    const testsupport::ModalAnswer filter([](QDialog* dialog) { check(dialog); });
    child<QPushButton>(&overview, "filterButton")->click();
    QVERIFY(filter.fired());
}

void tst_Keyboard::everyPageIsReached_data()
{
    QTest::addColumn<QString>("id");
    for (auto node = m_nodes.cbegin(); node != m_nodes.cend(); ++node)
        QTest::newRow(qPrintable(NodeTypes::readableName(node.key()))) << node.value();
}

/// Ctrl+Tab from whatever has the focus.
void tst_Keyboard::everyPageIsReached()
{
    QFETCH(QString, id);
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::ControlModifier | Qt::ShiftModifier}) {
        const std::unique_ptr<EditNodeDialog> dialog = editor(id, false);
        dialog->show();
        activate(dialog.get());
        const auto* tabs = dialog->findChild<QTabWidget*>();
        const bool back = modifiers & Qt::ShiftModifier;
        for (int step = 1; step <= tabs->count(); ++step) {
            QTest::keyClick(QApplication::focusWidget(), back ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
            const int expected = back ? tabs->count() - step : step % tabs->count();
            QCOMPARE(tabs->currentIndex(), expected);
        }
    }
}

void tst_Keyboard::viewersByKeys()
{
    NodeDBViewer viewer;
    viewer.show();
    activate(&viewer);
    auto* table = child<QTableView>(&viewer, "nodesTableView");
    table->setFocus();
    table->selectRow(1);
    QTest::keyClick(table, Qt::Key_Return);
    QPointer<GenericNodeViewer> node = viewer.findChild<GenericNodeViewer*>();
    QVERIFY(node && node->isVisible());
    QCOMPARE(child<QLineEdit>(node, "nodeNameLineEdit")->text(),
             table->model()->index(1, 1).data().toString());
    activate(node);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    KO_TRY_VERIFY(!node);
    activate(&viewer);
    QTest::keyClick(table, Qt::Key_Escape);
    QVERIFY(!viewer.isVisible());
}

/// It would send user name and password there.
void tst_Keyboard::enterAcceptsNoAddress()
{
    AddressChangesDialog dialog(Scanners::of(*m_host->db()).intake());
    child<QTableWidget>(&dialog, "changesTableWidget")->selectRow(0);
    dialog.show();
    activate(&dialog);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(int(Scanners::of(*m_host->db()).intake().addressChanges().size()), 1);
}

KO_TEST_MAIN(tst_Keyboard)
#include "tst_keyboard.moc"
