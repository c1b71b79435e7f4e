#include "MainWindow.h"

#include "CameraChecking.h"
#include "CheckPanel.h"
#include "Commands.h"
#include "DetailsDock.h"
#include "EmptyState.h"
#include "EnvironmentMenu.h"
#include "EnvironmentNotice.h"
#include "FittingToolBar.h"
#include "ListLoading.h"
#include "LogNotice.h"
#include "NodeCommands.h"
#include "NodeListModel.h"
#include "NodeListView.h"
#include "PlaceDock.h"
#include "PropertyColumns.h"
#include "ReadOnlyNotice.h"
#include "RecordingText.h"
#include "SavedSearchMenu.h"
#include "ScannerStatus.h"
#include "StatusRoom.h"
#include "StoreNotice.h"
#include "SurveyCommands.h"
#include "UndoCommands.h"
#include "UndoNotice.h"
#include "WindowHelpers.h"
#include "WindowSize.h"
#include "database/HostNodeDB.h"
#include "discovery/DeviceIntake.h"
#include "discovery/Scanners.h"
#include "drivers/NodeTypes.h"
#include "utils/Retranslation.h"
#include "utils/WindowTitle.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QSignalBlocker>
#include <QStatusBar>

#include <algorithm>

namespace ko {

MainWindow::MainWindow(HostNodeDB& db, QWidget* parent)
    : QMainWindow(parent)
    , m_db(db)
    , m_model(new NodeListModel([&db](const NodeSummary& node) { return RecordingText::of(node, db); }, this))
    , m_view(new NodeListView(this))
    , m_properties(new PropertyColumns(db, *m_model, *m_view, this))
    , m_search(new QLineEdit(this))
    , m_typesLabel(new QLabel(this))
    , m_types(new QComboBox(this))
    , m_saved(new SavedSearchMenu(*m_search, *m_types, m_model->columns(), this))
    , m_toolBar(new FittingToolBar(this))
    , m_empty(new EmptyState(m_view->viewport()))
    , m_counts(new QLabel(this))
    , m_commands(new Commands(*this))
    , m_surveys(new SurveyCommands(this))
    , m_checking(new CameraChecking(*this, *m_model))
    , m_environment(new EnvironmentNotice(db, statusBar()))
    , m_store(new StoreNotice(db, this))
    , m_undoing(new UndoCommands(*this, m_commands->action("actionUndo"), m_commands->action("actionRedo")))
    , m_undoNotice(new UndoNotice(*m_undoing, m_commands->action("actionUndo"), statusBar()))
    , m_places(new PlaceDock(*this, *m_model, *m_commands->menuOf("actionColumns")))
{
    setObjectName(QStringLiteral("MainWindow"));
    setWindowIcon(NodeTypes::icon(IPDeviceType));
    WindowHelpers::install(*this);
    createList();
    m_details = new DetailsDock(*this, *m_model, *m_commands->menuOf("actionColumns"));
    createEmptyState();
    createSearch();
    createTypes();
    createToolBar();
    auto* scanners = new ScannerStatus(m_db, this);
    for (QWidget* part : std::initializer_list<QWidget*>{new LogNotice(m_db, this), scanners, m_counts})
        statusBar()->addPermanentWidget(part);
    new StatusRoom(statusBar(), {scanners, m_counts, m_checking->panel()});

    connect(&m_frame, &OncePerFrame::due, this, &MainWindow::applyChanges);
    connect(&m_db, &NodeDB::nodeInserted, this, &MainWindow::nodeChanged);
    connect(&m_db, &NodeDB::nodeUpdated, this, &MainWindow::nodeChanged);
    connect(&m_db, &NodeDB::nodeRemoved, this, &MainWindow::nodeRemoved);
    connect(&Scanners::of(m_db).intake(), &DeviceIntake::addressChangesChanged, this, [this] {
        const int count = int(Scanners::of(m_db).intake().addressChanges().size());
        if (count > 0)
            say(tr("%n device(s) seen at a new address: Network > Seen at a New Address", nullptr, count));
    });

    setTranslated(this, [this] { retranslate(); });
    restoreState();
    updateCommands();
    m_view->setFocus();
}

MainWindow::~MainWindow() = default;

void MainWindow::retranslate()
{
    const QString name = m_name.isEmpty() ? QFileInfo(m_db.fileName()).fileName() : m_name;
    setWindowTitle(tr("%1 - Nodes").arg(inWindowTitle(name)));
    m_search->setPlaceholderText(tr("Search (Ctrl+F)"));
    m_search->setToolTip(
        tr("Words in any column; \"type:camera\" looks in one, \"state:wrong|locked\" for either, "
           "\"-yard\" leaves out"));
    m_search->setAccessibleName(tr("Search"));
    m_types->setAccessibleName(tr("Type"));
    fillTypes();
    m_typesLabel->setText(tr(" T&ype: "));
    m_toolBar->setWindowTitle(tr("Nodes"));
    m_commands->retranslate();
    m_undoing->retranslate();
    m_model->retranslate();
    m_model->setSearch(m_search->text()); // whose words name columns
    m_view->retranslate();
    m_properties->retranslate();
    updateStatus();
}

void MainWindow::createList()
{
    m_view->setNodeModel(m_model);
    m_loading = new ListLoading(m_db, *m_model, this);
    connect(m_loading, &ListLoading::done, this, [this] {
        m_properties->update();
        applyChanges();
        m_view->ensureCurrent(); // as one that gets the focus with rows has
    });
    setCentralWidget(m_view);
    connect(m_view, &NodeListView::nodeActivated, this, [this](const QString& id) {
        ReadOnlyNotice::watch(m_db, this, [&] { NodeCommands::open(*this, id); });
    });
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MainWindow::updateCommands);
    connect(m_model, &QAbstractItemModel::modelReset, this, &MainWindow::updateCommands);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &MainWindow::updateStatus);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, &MainWindow::updateStatus);
}

void MainWindow::createEmptyState()
{
    m_empty->addWay(m_commands->action("actionImport"),
                    QT_TRANSLATE_NOOP("EmptyState", "Import a List of Cameras..."));
    m_empty->addWay(m_commands->action("actionOverview"),
                    QT_TRANSLATE_NOOP("EmptyState", "Find Devices in the Network..."));
    m_empty->addWay(m_commands->action("actionAdd"), QT_TRANSLATE_NOOP("EmptyState", "Add a Camera..."));
    connect(m_empty, &EmptyState::showAll, this, [this] { find(QString()); });
}

void MainWindow::createSearch()
{
    m_search->setObjectName(QStringLiteral("searchLineEdit"));
    m_search->setClearButtonEnabled(true);
    connect(m_search, &QLineEdit::textChanged, m_properties, &PropertyColumns::setSearch);
    connect(m_search, &QLineEdit::textChanged, m_model, &NodeListModel::setSearch);
    QAction* clear = new QAction(m_search);
    clear->setShortcut(Qt::Key_Escape);
    clear->setShortcutContext(Qt::WidgetShortcut);
    connect(clear, &QAction::triggered, m_search, &QLineEdit::clear);
    m_search->addAction(clear);
    QAction* down = new QAction(m_search);
    down->setShortcut(Qt::Key_Down);
    down->setShortcutContext(Qt::WidgetShortcut);
    connect(down, &QAction::triggered, m_view, &NodeListView::enter);
    m_search->addAction(down);
    connect(m_search, &QLineEdit::returnPressed, m_view, &NodeListView::enter);

    connect(m_saved, &SavedSearchMenu::chosen, this, [this](const SavedSearch& search) {
        find(search.text);
        m_types->setCurrentIndex(std::max(0, m_types->findData(int(search.type))));
    });
    m_commands->menuOf("actionColumns")->addMenu(m_saved);

    QAction* find = new QAction(this);
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, m_search, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
    addAction(find);
}

void MainWindow::createTypes()
{
    m_types->setObjectName(QStringLiteral("typeComboBox"));
    connect(m_types, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { m_model->setTypeFilter(ENodeType(m_types->currentData().toInt())); });
}

/// In the order of their names.
void MainWindow::fillTypes()
{
    const QSignalBlocker blocker(m_types);
    const QVariant chosen = m_types->currentData();
    m_types->clear();
    m_types->addItem(tr("All types"), int(AllNodeTypes));
    const QList<ENodeType> all = NodeTypes::all();
    const NodeDB::TypeNames types = m_db.readableNodeTypeNames(&all, true);
    for (const auto& type : types)
        m_types->addItem(NodeTypes::icon(type.first), type.second, int(type.first));
    m_types->setCurrentIndex(std::max(0, m_types->findData(chosen)));
}

void MainWindow::createToolBar()
{
    addToolBar(m_toolBar);
    m_toolBar->setObjectName(QStringLiteral("toolBar"));
    m_toolBar->setMovable(false);
    m_commands->fill(*m_toolBar);
    m_toolBar->addSeparator();
    m_toolBar->addWidget(m_search);
    m_toolBar->addWidget(m_saved->createButton(m_toolBar));
    m_typesLabel->setBuddy(m_types); // by which a screen reader names the box
    m_toolBar->addWidget(m_typesLabel);
    m_toolBar->addWidget(m_types);
    auto* environments = new EnvironmentMenu(m_db, m_toolBar);
    environments->setAction(m_toolBar->addWidget(environments));
}

void MainWindow::nodeChanged(const NodeID& id)
{
    m_frame.later();
    m_removed.remove(id);
    m_changed.insert(id);
}

void MainWindow::nodeRemoved(const NodeID& id)
{
    m_frame.later();
    m_changed.remove(id);
    m_removed.insert(id);
}

void MainWindow::applyChanges()
{
    if (!m_loading->isDone())
        return;
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
    m_properties->take(changed);
    m_model->apply(changed, removed);
    m_places->take(changed, removed);
    m_details->take(changed);
    updateStatus();
}

void MainWindow::updateCommands()
{
    m_commands->setSelected(m_view->selectedCount());
    updateStatus();
}

void MainWindow::updateStatus()
{
    if (!m_loading->isDone()) {
        m_counts->setText(EmptyState::readingText());
        return m_empty->setCounts(-1, m_model->rowCount());
    }
    const int selected = m_view->selectedCount();
    const QLocale locale;
    m_counts->setText(tr("Devices: %1, other nodes: %2; shown: %3, selected: %4")
                          .arg(locale.toString(m_model->deviceCount()),
                               locale.toString(m_model->nodeCount() - m_model->deviceCount()),
                               locale.toString(m_model->rowCount()), locale.toString(selected)));
    m_empty->setCounts(m_model->nodeCount(), m_model->rowCount());
}

void MainWindow::setDatabaseName(const QString& name)
{
    m_name = name;
    retranslate();
}

void MainWindow::find(const QString& search)
{
    m_types->setCurrentIndex(0);
    m_places->showAll();
    m_search->setText(search);
    m_search->setCursorPosition(0); // a long one shows its field
    m_view->setFocus();
}

void MainWindow::say(const QString& text)
{
    statusBar()->showMessage(text, 10000);
}

void MainWindow::sayDone(const QString& text)
{
    m_undoNotice->offer(text);
}

void MainWindow::exec(QDialog& dialog)
{
    m_environment->exec(dialog);
}

void MainWindow::openInstead(const QString& database)
{
    m_next = database;
    if (close())
        emit closedForNext();
    else
        m_next.clear();
}

void MainWindow::importCameras()
{
    m_store->setQuiet(true); // the report of the import tells when storing fails
    m_surveys->importCameras();
    m_store->setQuiet(false);
}

void MainWindow::exportCameras()
{
    m_surveys->exportCameras(QStringList(), m_checking->columns());
}

void MainWindow::exportSelected()
{
    const QStringList devices = NodeCommands::selectedDevices(*this);
    if (!devices.isEmpty())
        m_surveys->exportCameras(devices, m_checking->columns());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_surveys->closeWindowAfterwards()) {
        event->ignore();
        return;
    }
    if (!m_store->mayClose()) {
        event->ignore();
        return;
    }
    m_checking->cancel();
    saveState();
    QMainWindow::closeEvent(event);
}

void MainWindow::restoreState()
{
    const QSettings settings;
    if (!restoreGeometry(settings.value(QStringLiteral("window/geometry")).toByteArray()))
        resizeWithinScreen(*this, QSize(900, 600));
    QMainWindow::restoreState(settings.value(QStringLiteral("window/docks")).toByteArray());
    const int more = std::max(0, widestType() - 130);
    const int widths[] = {250, 130 + more, 150, 150, std::max(100, 180 - more)}; // State has the rest
    for (int column = 0; column < int(std::size(widths)); ++column)
        m_view->header()->resizeSection(column, widths[column]);
    m_view->restoreColumns(settings);
    m_model->sort(m_view->header()->sortIndicatorSection(), m_view->header()->sortIndicatorOrder());
}

/// With the room that a cell has around its text.
int MainWindow::widestType() const
{
    const int room = 2 * fontMetrics().averageCharWidth();
    int width = 0;
    for (int i = 1; i < m_types->count(); ++i)
        width = std::max(width, fontMetrics().horizontalAdvance(m_types->itemText(i)) + room);
    return width;
}

void MainWindow::saveState() const
{
    QSettings settings;
    settings.setValue(QStringLiteral("window/geometry"), saveGeometry());
    settings.setValue(QStringLiteral("window/docks"), QMainWindow::saveState());
    m_view->saveColumns(settings);
    m_loading->rememberFirst();
}

} // namespace ko
