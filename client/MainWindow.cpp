#include "MainWindow.h"

#include "AddressChangesDialog.h"
#include "AuditLogDialog.h"
#include "DeviceSettings.h"
#include "EnvironmentNotice.h"
#include "FocusMark.h"
#include "ImportReportDialog.h"
#include "LayoutAdapter.h"
#include "NameList.h"
#include "NodeListModel.h"
#include "NodeListView.h"
#include "NodeLogEntries.h"
#include "PlainMessageBox.h"
#include "PreferencesDialog.h"
#include "RemoveNodesBox.h"
#include "ScannerStatus.h"
#include "SurveyCommands.h"
#include "WheelGuard.h"
#include "audit/AuditLog.h"
#include "database/HostNodeDB.h"
#include "dialogs/AddNodeDialog.h"
#include "dialogs/EditNodeDialog.h"
#include "dialogs/EnvironmentDialog.h"
#include "dialogs/NetworkProxyDialog.h"
#include "dialogs/NodeDBViewer.h"
#include "dialogs/NodeOverviewDialog.h"
#include "drivers/NodeTypes.h"
#include "ko/Node.h"
#include "ko/dialogFlags.h"
#include "utils/WindowTitle.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QStatusBar>
#include <QTableView>
#include <QTimer>
#include <QToolBar>
#include <QTreeView>

namespace ko {

namespace {

const unsigned environmentRow = 0x80;
const unsigned layoutLists = 0x20;
const unsigned listOptions = 17; ///< as the other lists of nodes pass them

/// What the list shows as the recording of \a node. No member, because the view still asks while it goes
/// down with its window.
QString recordingText(const HostNodeDB& db, const NodeSummary& node)
{
    switch (node.recordingUsage) {
    case -1:
        return QString();
    case 0:
        return node.type == RecordingFolderType ? QString() : MainWindow::tr("Via camera");
    case 1:
    case 3: // the forms 3 and 4 are of older databases
        return MainWindow::tr("Default file server path");
    default: {
        const QStringList folders = db.relatedNodes(node.id, RecordingFolderRelation);
        return folders.isEmpty() ? QString() : db.summary(folders.first()).location;
    }
    }
}

} // namespace

/// One entry of the menus.
struct MainWindow::Command
{
    enum Needs { Nothing, OneNode, SomeNodes };

    const char* name; ///< object name of the action
    const char* text;
    const char* statusTip;
    QKeySequence shortcut;
    const char* icon; ///< of the desktop's theme
    Needs needs;
    void (MainWindow::*run)();
};

MainWindow::MainWindow(HostNodeDB& db, QWidget* parent)
    : QMainWindow(parent)
    , m_db(db)
    , m_model(new NodeListModel([&db](const NodeSummary& node) { return recordingText(db, node); }, this))
    , m_view(new NodeListView(this))
    , m_search(new QLineEdit(this))
    , m_types(new QComboBox(this))
    , m_counts(new QLabel(this))
    , m_surveys(new SurveyCommands(this))
    , m_environment(new EnvironmentNotice(db, statusBar()))
{
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(tr("%1 - Nodes").arg(inWindowTitle(QFileInfo(db.fileName()).fileName())));
    setWindowIcon(NodeTypes::icon(IPDeviceType));
    registerNodeLogEntries();
    new WheelGuard(this);
    new FocusMark(this);
    createList();
    createToolBar();
    createCommands();
    statusBar()->addPermanentWidget(new ScannerStatus(m_db, this));
    statusBar()->addPermanentWidget(m_counts);

    connect(&m_db, &NodeDB::nodeInserted, this, &MainWindow::nodeChanged);
    connect(&m_db, &NodeDB::nodeUpdated, this, &MainWindow::nodeChanged);
    connect(&m_db, &NodeDB::nodeRemoved, this, &MainWindow::nodeRemoved);
    connect(&m_db, &HostNodeDB::storeFailed, this, &MainWindow::storeFailed);
    connect(&m_db, &HostNodeDB::storeRecovered, this, &MainWindow::storeRecovered);
    connect(&m_db, &HostNodeDB::storeDamaged, this, [this](const StoreError& error) {
        PlainMessageBox::ask(QMessageBox::Critical, this, tr("Node Database"), error.message);
    });

    connect(&m_db.deviceIntake(), &DeviceIntake::addressChangesChanged, this, [this] {
        const int count = int(m_db.deviceIntake().addressChanges().size());
        if (count > 0)
            statusBar()->showMessage(tr("%n device(s) seen at a new address", nullptr, count), 10000);
    });

    restoreState();
    updateActions();
    updateStatus();
    m_view->setFocus();
}

MainWindow::~MainWindow() = default;

void MainWindow::createList()
{
    m_view->setNodeModel(m_model);
    m_model->setNodes(m_db.summaries());
    setCentralWidget(m_view);
    connect(m_view, &NodeListView::nodeActivated, this, [this](const QString& id) { openEditor(id, false); });
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MainWindow::updateActions);
    connect(m_model, &QAbstractItemModel::modelReset, this, &MainWindow::updateActions);
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(m_model, signal, this, &MainWindow::updateStatus);
}

void MainWindow::createToolBar()
{
    m_search->setObjectName(QStringLiteral("searchLineEdit"));
    m_search->setPlaceholderText(tr("Search (Ctrl+F)"));
    m_search->setClearButtonEnabled(true);
    m_search->setToolTip(tr("Words in name, type, address or recording"));
    m_search->setAccessibleName(tr("Search"));
    connect(m_search, &QLineEdit::textChanged, m_model, &NodeListModel::setSearch);
    QAction* clear = new QAction(m_search);
    clear->setShortcut(Qt::Key_Escape);
    clear->setShortcutContext(Qt::WidgetShortcut);
    connect(clear, &QAction::triggered, m_search, &QLineEdit::clear);
    m_search->addAction(clear);

    m_types->setObjectName(QStringLiteral("typeComboBox"));
    m_types->setAccessibleName(tr("Type"));
    m_types->addItem(tr("All types"), int(AllNodeTypes));
    const QList<ENodeType> all = NodeTypes::all();
    const NodeDB::TypeNames types = m_db.readableNodeTypeNames(&all, true);
    for (const auto& type : types)
        m_types->addItem(NodeTypes::icon(type.first), type.second, int(type.first));
    connect(m_types, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { m_model->setTypeFilter(ENodeType(m_types->currentData().toInt())); });

    QToolBar* bar = addToolBar(tr("Nodes"));
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
}

void MainWindow::createCommands()
{
    static const char separator[] = "";
    typedef Command C;
    const struct
    {
        const char* title;
        QVector<Command> commands;
    } menus[] = {
        {QT_TR_NOOP("&File"),
         {
             {"actionImport",
              QT_TR_NOOP("&Import..."),
              QT_TR_NOOP("Adds the cameras of a site survey (CSV)"),
              {},
              "document-open",
              C::Nothing,
              &MainWindow::importCameras},
             {"actionExport",
              QT_TR_NOOP("&Export..."),
              QT_TR_NOOP("Writes all cameras into a CSV file"),
              {},
              "document-save-as",
              C::Nothing,
              &MainWindow::exportCameras},
             {separator, "", "", {}, "", C::Nothing, nullptr},
             {"actionPreferences", QT_TR_NOOP("&Preferences..."),
              QT_TR_NOOP("Default paths and the bandwidth"), QKeySequence::Preferences, "preferences-system",
              C::Nothing, &MainWindow::editPreferences},
             {separator, "", "", {}, "", C::Nothing, nullptr},
             {"actionQuit", QT_TR_NOOP("&Quit"), QT_TR_NOOP("Closes the program"),
              QKeySequence(Qt::CTRL | Qt::Key_Q), "application-exit", C::Nothing, nullptr},
         }},
        {QT_TR_NOOP("&Node"),
         {
             {"actionAdd", QT_TR_NOOP("&Add..."), QT_TR_NOOP("Adds a node"), QKeySequence::New, "list-add",
              C::Nothing, &MainWindow::addNode},
             {"actionEdit", QT_TR_NOOP("&Edit..."), QT_TR_NOOP("Changes the selected node"),
              QKeySequence(Qt::CTRL | Qt::Key_E), "document-edit", C::OneNode, &MainWindow::editNode},
             {"actionRemove", QT_TR_NOOP("&Remove..."), QT_TR_NOOP("Removes the selected nodes"),
              QKeySequence::Delete, "list-remove", C::SomeNodes, &MainWindow::removeNodes},
             {"actionProperties", QT_TR_NOOP("&Properties"),
              QT_TR_NOOP("Shows the selected node without changing it"),
              QKeySequence(Qt::ALT | Qt::Key_Return), "document-properties", C::OneNode,
              &MainWindow::showProperties},
             {separator, "", "", {}, "", C::Nothing, nullptr},
             {"actionCredentials", QT_TR_NOOP("&User && Password..."),
              QT_TR_NOOP("Gives the selected devices one user name and password"),
              QKeySequence(Qt::CTRL | Qt::Key_U), "dialog-password", C::SomeNodes,
              &MainWindow::editCredentials},
             {"actionRecording", QT_TR_NOOP("Access Re&cordings..."),
              QT_TR_NOOP("Where the recordings of the selected cameras are played from"),
              QKeySequence(Qt::CTRL | Qt::Key_R), "folder-videos", C::SomeNodes, &MainWindow::editRecording},
         }},
        {QT_TR_NOOP("Net&work"),
         {
             {"actionProxy",
              QT_TR_NOOP("Network &Proxy..."),
              QT_TR_NOOP("The proxy server of the application"),
              {},
              "preferences-system-network",
              C::Nothing,
              &MainWindow::editProxy},
             {"actionEnvironments",
              QT_TR_NOOP("&Environments..."),
              QT_TR_NOOP("The network environments"),
              {},
              "",
              C::Nothing,
              &MainWindow::editEnvironments},
             {"actionOverview",
              QT_TR_NOOP("&Find Devices..."),
              QT_TR_NOOP("Nodes that arrive while the network is scanned"),
              {},
              "edit-find",
              C::Nothing,
              &MainWindow::showOverview},
             {"actionAddressChanges",
              QT_TR_NOOP("&Seen at a New Address..."),
              QT_TR_NOOP("Devices that a scan found at another address than they have here"),
              {},
              "",
              C::Nothing,
              &MainWindow::showAddressChanges},
         }},
        {QT_TR_NOOP("&View"),
         {
             {"actionAuditLog", QT_TR_NOOP("&Audit Log..."), QT_TR_NOOP("Who changed what, and when"),
              QKeySequence(Qt::CTRL | Qt::Key_L), "view-history", C::Nothing, &MainWindow::showAuditLog},
             {"actionDatabase",
              QT_TR_NOOP("Node &Database..."),
              QT_TR_NOOP("Everything that is stored"),
              {},
              "",
              C::Nothing,
              &MainWindow::showDatabase},
         }},
        {QT_TR_NOOP("&Help"),
         {
             {"actionAbout", QT_TR_NOOP("&About"), "", {}, "help-about", C::Nothing, &MainWindow::about},
         }},
    };

    QToolBar* bar = findChild<QToolBar*>(QStringLiteral("toolBar"));
    const int buttons = 4; // the first commands of nodes; the search field needs the rest of the bar
    for (const auto& entry : menus) {
        QMenu* menu = menuBar()->addMenu(tr(entry.title));
        const bool forNodes = qstrcmp(entry.title, "&Node") == 0;
        for (const Command& command : entry.commands) {
            if (command.name == separator) {
                menu->addSeparator();
                continue;
            }
            QAction* action =
                menu->addAction(QIcon::fromTheme(QLatin1String(command.icon)), tr(command.text));
            action->setObjectName(QLatin1String(command.name));
            action->setStatusTip(tr(command.statusTip));
            action->setShortcut(command.shortcut);
            if (command.run)
                connect(action, &QAction::triggered, this, command.run);
            if (command.needs == C::OneNode)
                m_forOne.append(action);
            else if (command.needs == C::SomeNodes)
                m_forSome.append(action);
            if (forNodes) {
                if (bar->actions().size() < buttons)
                    bar->addAction(action);
                m_view->addAction(action); // its context menu
            }
        }
    }
    connect(findChild<QAction*>(QStringLiteral("actionQuit")), &QAction::triggered, this, &QWidget::close);
    bar->addSeparator();
    bar->addWidget(m_search);
    QLabel* typesLabel = new QLabel(tr(" T&ype: "), this); // by which a screen reader names the box
    typesLabel->setBuddy(m_types);
    bar->addWidget(typesLabel);
    bar->addWidget(m_types);

    QAction* find = new QAction(this);
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, m_search, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
    addAction(find);
}

void MainWindow::nodeChanged(ko::NodeID id)
{
    if (m_changed.isEmpty() && m_removed.isEmpty())
        QTimer::singleShot(0, this, &MainWindow::applyChanges);
    m_removed.remove(id);
    m_changed.insert(id);
}

void MainWindow::nodeRemoved(ko::NodeID id)
{
    if (m_changed.isEmpty() && m_removed.isEmpty())
        QTimer::singleShot(0, this, &MainWindow::applyChanges);
    m_changed.remove(id);
    m_removed.insert(id);
}

void MainWindow::applyChanges()
{
    QVector<NodeSummary> changed;
    changed.reserve(int(m_changed.size()));
    for (const QString& id : std::as_const(m_changed)) {
        const NodeSummary summary = m_db.summary(id);
        if (!summary.id.isEmpty())
            changed.append(summary);
    }
    const QStringList removed(m_removed.begin(), m_removed.end());
    m_changed.clear();
    m_removed.clear();
    m_model->apply(changed, removed);
    updateStatus();
}

void MainWindow::updateActions()
{
    const int selected = m_view->selectedCount();
    for (QAction* action : std::as_const(m_forOne))
        action->setEnabled(selected == 1);
    for (QAction* action : std::as_const(m_forSome))
        action->setEnabled(selected >= 1);
    updateStatus();
}

void MainWindow::updateStatus()
{
    const int selected = m_view->selectedCount();
    const QLocale locale;
    m_counts->setText(tr("%1 nodes, %2 shown, %3 selected")
                          .arg(locale.toString(m_model->nodeCount()), locale.toString(m_model->rowCount()),
                               locale.toString(selected)));
}

void MainWindow::openEditor(const QString& id, bool readOnly)
{
    const LayoutAdapter layouts;
    EditNodeDialog dialog(id, this, readOnly, listOptions | environmentRow | layoutLists, &layouts);
    m_environment->exec(dialog);
}

void MainWindow::addNode()
{
    QList<ENodeType> types;
    const QList<ENodeType> all = NodeTypes::all();
    for (const ENodeType type : all) {
        if (NodeTypes::canBeAdded(type))
            types.append(type);
    }
    // What is added most often comes first.
    types.removeOne(IPDeviceType);
    types.prepend(IPDeviceType);
    AddNodeDialog dialog(this, this, &types, false, listOptions | environmentRow);
    m_environment->exec(dialog);
    const kom::smart<const Node> node = m_db.node(dialog.nodeId());
    if (node.null())
        return;
    m_db.auditLog().log(NodeAddLogEntry(node->name()));
    applyChanges();
    m_view->selectNode(dialog.nodeId());
}

void MainWindow::editNode()
{
    const QStringList ids = m_view->selectedIds();
    if (ids.size() == 1)
        openEditor(ids.first(), false);
}

void MainWindow::showProperties()
{
    const QStringList ids = m_view->selectedIds();
    if (ids.size() == 1)
        openEditor(ids.first(), true);
}

QStringList MainWindow::selectedDevices() const
{
    QStringList devices;
    const QStringList ids = m_view->selectedIds();
    for (const QString& id : ids) {
        if (NodeTypes::isDevice(m_db.summary(id).type))
            devices.append(id);
    }
    if (devices.isEmpty())
        statusBar()->showMessage(tr("No camera is selected."), 10000);
    return devices;
}

void MainWindow::editRecording()
{
    const QStringList devices = selectedDevices();
    if (!devices.isEmpty())
        statusBar()->showMessage(DeviceSettings::editRecording(m_db, devices, this), 10000);
}

void MainWindow::editCredentials()
{
    const QStringList devices = selectedDevices();
    if (!devices.isEmpty())
        statusBar()->showMessage(DeviceSettings::editCredentials(m_db, devices, this), 10000);
}

QStringList MainWindow::selectedNames(const QStringList& ids) const
{
    QStringList names;
    names.reserve(int(ids.size()));
    for (const QString& id : ids)
        names.append(m_db.summary(id).name);
    return names;
}

void MainWindow::removeNodes()
{
    const QStringList ids = m_view->selectedIds();
    const QStringList names = selectedNames(ids);
    if (ids.isEmpty() || !confirmRemoval(names, this))
        return;
    for (int i = 0; i < ids.size(); ++i) {
        if (m_db.summary(ids.at(i)).id.isEmpty())
            continue; // removed by somebody else while we asked
        m_db.removeNode(ids.at(i));
        m_db.auditLog().log(NodeRemoveLogEntry(names.at(i)));
    }
}

void MainWindow::editProxy()
{
    NetworkProxyDialog dialog(this, dialogFlags(false));
    dialog.exec();
}

void MainWindow::editEnvironments()
{
    EnvironmentDialog dialog(this);
    dialog.exec();
}

void MainWindow::editPreferences()
{
    PreferencesDialog dialog(m_db, this);
    dialog.exec();
}

void MainWindow::showAuditLog()
{
    AuditLogDialog dialog(m_db.auditLog(), this);
    dialog.exec();
}

void MainWindow::showOverview()
{
    NodeOverviewDialog dialog(this);
    connect(dialog.findChild<QTreeView*>(QStringLiteral("nodesTreeView")), &QTreeView::doubleClicked,
            dialog.findChild<QAction*>(QStringLiteral("actionEdit")), &QAction::trigger);
    if (dialog.exec() != QDialog::Accepted)
        return;
    applyChanges();
    m_view->selectNodes(dialog.selected()); // for what is to be done with them next
    m_view->setFocus();
}

void MainWindow::showAddressChanges()
{
    AddressChangesDialog dialog(m_db.deviceIntake(), this);
    dialog.exec();
}

void MainWindow::showDatabase()
{
    NodeDBViewer* viewer = new NodeDBViewer(this);
    viewer->setWindowFlag(Qt::Window);
    viewer->setAttribute(Qt::WA_DeleteOnClose);
    // The viewer itself leaves its models behind.
    auto* sorted = qobject_cast<QSortFilterProxyModel*>(viewer->findChild<QTableView*>()->model());
    connect(viewer, &QObject::destroyed, sorted, &QObject::deleteLater);
    connect(viewer, &QObject::destroyed, sorted->sourceModel(), &QObject::deleteLater);
    viewer->show();
}

void MainWindow::importCameras()
{
    m_isImporting = true;
    m_surveys->importCameras();
    m_isImporting = false;
    m_db.flush(); // what still waits is a case for the other box
}

void MainWindow::exportCameras()
{
    m_surveys->exportCameras();
}

void MainWindow::about()
{
    QMessageBox::about(this, tr("About"),
                       tr("<h3>%1 %2</h3><p>Shows, adds, edits and removes the nodes of a video-surveillance "
                          "system.</p><p>Free software under the GNU LGPL 2.1 or later.</p><p>Qt %3</p>")
                           .arg(QApplication::applicationDisplayName().toHtmlEscaped(),
                                QLatin1String(KO_VERSION), QLatin1String(qVersion())));
}

QString MainWindow::unstoredText() const
{
    QStringList text(tr("Nothing you entered is lost while this window is open."));
    QStringList names;
    const QStringList ids = m_db.unstoredNodes();
    for (const QString& id : ids) {
        const NodeSummary node = m_db.summary(id);
        if (!node.id.isEmpty())
            names.append(node.name);
    }
    if (!names.isEmpty())
        text << tr("What waits to be stored, all of it or nothing, belongs to:") << listOfNames(names);
    return text.join(QLatin1Char('\n'));
}

void MainWindow::storeFailed(const ko::StoreError& error)
{
    if (m_isImporting)
        return;
    if (m_failure) {
        m_failure->setText(error.message);
        m_failure->setInformativeText(unstoredText());
        return;
    }
    m_failure = new PlainMessageBox(QMessageBox::Critical, tr("Changes Are Not Stored"), error.message,
                                    QMessageBox::NoButton, this);
    m_failure->setObjectName(QStringLiteral("storeFailedBox"));
    m_failure->setAttribute(Qt::WA_DeleteOnClose);
    m_failure->setInformativeText(unstoredText());
    m_failure->setDetailedText(error.detail);
    QPushButton* retry = m_failure->addButton(tr("Retry"), QMessageBox::AcceptRole);
    QPushButton* discard = m_failure->addButton(tr("Discard Changes"), QMessageBox::DestructiveRole);
    m_failure->setDefaultButton(retry);
    connect(m_failure, &QMessageBox::buttonClicked, this, [this, discard](QAbstractButton* button) {
        const bool discards = button == static_cast<QAbstractButton*>(discard);
        m_failure = nullptr; // it closes itself; a new failure gets a box of its own
        if (discards)
            m_db.discardUnstoredChanges();
        else
            m_db.flush();
    });
    m_failure->open();
}

void MainWindow::storeRecovered()
{
    if (m_failure)
        m_failure->done(0); // it has no button that closing it could stand for
    statusBar()->showMessage(tr("All changes are stored."), 10000);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_surveys->closeWindowAfterwards()) {
        event->ignore();
        return;
    }
    if (!m_db.flush()) {
        const auto answer = PlainMessageBox::ask(
            QMessageBox::Warning, this, tr("Changes Are Not Stored"),
            tr("There are changes that could not be stored. They are lost when the program is closed now."),
            QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel);
        if (answer != QMessageBox::Discard) {
            event->ignore();
            return;
        }
        m_db.discardUnstoredChanges();
    }
    saveState();
    QMainWindow::closeEvent(event);
}

void MainWindow::restoreState()
{
    const QSettings settings;
    if (!restoreGeometry(settings.value(QStringLiteral("window/geometry")).toByteArray()))
        resize(900, 600);
    m_view->header()->resizeSection(NodeListModel::NameColumn, 260);
    m_view->header()->resizeSection(NodeListModel::TypeColumn, 160);
    m_view->header()->resizeSection(NodeListModel::AddressColumn, 180);
    m_view->header()->restoreState(settings.value(QStringLiteral("window/columns")).toByteArray());
    m_model->sort(m_view->header()->sortIndicatorSection(), m_view->header()->sortIndicatorOrder());
}

void MainWindow::saveState() const
{
    QSettings settings;
    settings.setValue(QStringLiteral("window/geometry"), saveGeometry());
    settings.setValue(QStringLiteral("window/columns"), m_view->header()->saveState());
}

} // namespace ko
