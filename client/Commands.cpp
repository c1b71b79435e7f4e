#include "Commands.h"

#include "CameraChecking.h"
#include "FillInDialog.h"
#include "MainWindow.h"
#include "NodeCommands.h"
#include "NodeListView.h"
#include "WindowCommands.h"

#include <QAction>
#include <QMenuBar>
#include <QToolBar>

namespace ko {

namespace {

enum Needs { Nothing, OneNode, SomeNodes };

enum Place {
    InMenu = 0,    ///< only there
    InList = 1,    ///< in the context menu of the list
    InBar = 2,     ///< in the tool bar
    AfterLine = 4, ///< begins a new group
};

} // namespace

struct Commands::Command
{
    const char* menu;
    const char* name; ///< object name of the action
    const char* text;
    const char* tip;
    const char* keys; ///< parted by "; "
    const char* icon; ///< of the desktop's theme
    Needs needs;
    int places;
    void (*run)(MainWindow&);
};

#define KO_TEXT(text) QT_TRANSLATE_NOOP("ko::MainWindow", text)

// The search field needs the room of the bar that the first commands of nodes leave.
const Commands::Command Commands::all[] = {
    {KO_TEXT("&File"), "actionImport", KO_TEXT("&Import..."),
     KO_TEXT("Adds the cameras of a site survey (CSV)"), "", "document-open", Nothing, InMenu,
     [](MainWindow& window) { window.importCameras(); }},
    {KO_TEXT("&File"), "actionExport", KO_TEXT("&Export..."), KO_TEXT("Writes all cameras into a CSV file"),
     "", "document-save-as", Nothing, InMenu, [](MainWindow& window) { window.exportCameras(); }},
    {KO_TEXT("&File"), "actionExportSelected", KO_TEXT("Export &Selected..."),
     KO_TEXT("Writes the selected cameras into a CSV file"), "", "", SomeNodes, InMenu,
     [](MainWindow& window) { window.exportSelected(); }},
    {KO_TEXT("&File"), "actionPreferences", KO_TEXT("&Preferences..."),
     KO_TEXT("Default paths and the bandwidth"), "", "preferences-system", Nothing, AfterLine,
     &WindowCommands::editPreferences},
    {KO_TEXT("&File"), "actionQuit", KO_TEXT("&Quit"), KO_TEXT("Closes the program"), "Ctrl+Q",
     "application-exit", Nothing, AfterLine, [](MainWindow& window) { window.close(); }},

    {KO_TEXT("&Node"), "actionAdd", KO_TEXT("&Add..."), KO_TEXT("Adds a node"), "Ctrl+N", "list-add", Nothing,
     InList | InBar, &NodeCommands::add},
    {KO_TEXT("&Node"), "actionEdit", KO_TEXT("&Edit..."), KO_TEXT("Changes the selected node"), "Ctrl+E; F2",
     "document-edit", OneNode, InList | InBar, &NodeCommands::edit},
    {KO_TEXT("&Node"), "actionRemove", KO_TEXT("&Remove..."), KO_TEXT("Removes the selected nodes"), "Del",
     "list-remove", SomeNodes, InList | InBar, &NodeCommands::remove},
    {KO_TEXT("&Node"), "actionProperties", KO_TEXT("&Properties"),
     KO_TEXT("Shows the selected node without changing it"), "Alt+Return", "document-properties", OneNode,
     InList | InBar, &NodeCommands::showProperties},
    {KO_TEXT("&Node"), "actionCredentials", KO_TEXT("&User && Password..."),
     KO_TEXT("Gives the selected devices one user name and password"), "Ctrl+U", "dialog-password", SomeNodes,
     InList | AfterLine, &NodeCommands::editCredentials},
    {KO_TEXT("&Node"), "actionRecording", KO_TEXT("Access Re&cordings..."),
     KO_TEXT("Where the recordings of the selected cameras are played from"), "Ctrl+R", "folder-videos",
     SomeNodes, InList, &NodeCommands::editRecording},
    {KO_TEXT("&Node"), "actionFillIn", KO_TEXT("&Fill In..."),
     KO_TEXT("Asks the selected devices what they are, and stores what you choose of it"), "", "", SomeNodes,
     InList, [](MainWindow& window) { FillInDialog::run(window); }},

    {KO_TEXT("&Node"), "actionDuplicate", KO_TEXT("&Duplicate..."),
     KO_TEXT("Adds a node that is like the selected one"), "Ctrl+D", "edit-copy", OneNode, InList | AfterLine,
     &NodeCommands::duplicate},
    {KO_TEXT("&Node"), "actionWebPage", KO_TEXT("Open &Web Page"),
     KO_TEXT("Opens the page of the selected device in the browser"), "", "internet-web-browser", OneNode,
     InList, &NodeCommands::openWebPage},
    {KO_TEXT("&Node"), "actionCopyRows", KO_TEXT("Copy R&ows"),
     KO_TEXT("Copies the selected rows for a spreadsheet"), "Ctrl+C", "edit-copy", SomeNodes, InList,
     &NodeCommands::copyRows},
    {KO_TEXT("&Node"), "actionCopyAddresses", KO_TEXT("Copy Addre&ss"),
     KO_TEXT("Copies the addresses of the selected nodes"), "Ctrl+Shift+C", "", SomeNodes, InList,
     &NodeCommands::copyAddresses},

    {KO_TEXT("Net&work"), "actionProxy", KO_TEXT("Network &Proxy..."),
     KO_TEXT("The proxy server of the application"), "", "preferences-system-network", Nothing, InMenu,
     &WindowCommands::editProxy},
    {KO_TEXT("Net&work"), "actionEnvironments", KO_TEXT("&Environments..."),
     KO_TEXT("The network environments"), "", "", Nothing, InMenu, &WindowCommands::editEnvironments},
    {KO_TEXT("Net&work"), "actionOverview", KO_TEXT("&Find Devices..."),
     KO_TEXT("Nodes that arrive while the network is scanned"), "", "edit-find", Nothing, InMenu,
     &WindowCommands::findDevices},
    {KO_TEXT("Net&work"), "actionAddressChanges", KO_TEXT("&Seen at a New Address..."),
     KO_TEXT("Devices that a scan found at another address than they have here"), "", "", Nothing, InMenu,
     &WindowCommands::showAddressChanges},
    {KO_TEXT("Net&work"), "actionCheck", KO_TEXT("&Check Cameras"),
     KO_TEXT("Asks the selected cameras, or all, who they are, and tries their passwords"), "F5",
     "view-refresh", Nothing, InList | AfterLine, [](MainWindow& window) { window.checking().check(); }},
    {KO_TEXT("Net&work"), "actionAcceptDevices", KO_TEXT("&Accept as This Camera..."),
     KO_TEXT("Another device than before is this camera from now on"), "", "", SomeNodes, InList,
     [](MainWindow& window) { window.checking().acceptDevices(); }},
    {KO_TEXT("Net&work"), "actionAllowClearPasswords", KO_TEXT("A&llow Clear Password..."),
     KO_TEXT("Cameras that take it in no other way are sent the password for all to read"), "", "", SomeNodes,
     InList, [](MainWindow& window) { window.checking().allowClearPasswords(); }},

    {KO_TEXT("&View"), "actionColumns", KO_TEXT("&Columns..."), KO_TEXT("Which columns the list has"), "", "",
     Nothing, InMenu, [](MainWindow& window) { window.list().chooseColumns(); }},
    {KO_TEXT("&View"), "actionAuditLog", KO_TEXT("&Audit Log..."), KO_TEXT("Who changed what, and when"),
     "Ctrl+L", "view-history", Nothing, AfterLine, &WindowCommands::showAuditLog},
    {KO_TEXT("&View"), "actionDatabase", KO_TEXT("Node &Database..."), KO_TEXT("Everything that is stored"),
     "", "", Nothing, InMenu, &WindowCommands::showDatabase},

    {KO_TEXT("&Help"), "actionAbout", KO_TEXT("&About"), "", "", "help-about", Nothing, InMenu,
     &WindowCommands::about},
};

#undef KO_TEXT

Commands::Commands(MainWindow& window)
    : QObject(&window)
    , m_window(window)
{
    QMenu* menu = nullptr;
    const char* title = "";
    for (const Command& command : all) {
        if (qstrcmp(title, command.menu) != 0)
            menu = window.menuBar()->addMenu(MainWindow::tr(command.menu));
        title = command.menu;
        if (command.places & AfterLine)
            menu->addSeparator();
        QAction* action = createAction(command);
        menu->addAction(action);
        if (command.places & InList)
            window.list().addAction(action);
        m_actions.append(action);
    }
}

QAction* Commands::createAction(const Command& command)
{
    QAction* action =
        new QAction(QIcon::fromTheme(QLatin1String(command.icon)), MainWindow::tr(command.text), &m_window);
    action->setObjectName(QLatin1String(command.name));
    if (*command.tip)
        action->setStatusTip(MainWindow::tr(command.tip));
    action->setShortcuts(QKeySequence::listFromString(QLatin1String(command.keys)));
    connect(action, &QAction::triggered, &m_window, [this, run = command.run] { run(m_window); });
    return action;
}

void Commands::fill(QToolBar& bar) const
{
    for (int i = 0; i < m_actions.size(); ++i) {
        if (all[i].places & InBar)
            bar.addAction(m_actions.at(i));
    }
}

void Commands::setSelected(int nodes)
{
    for (int i = 0; i < m_actions.size(); ++i) {
        const Needs needs = all[i].needs;
        m_actions.at(i)->setEnabled(needs == Nothing || (needs == OneNode ? nodes == 1 : nodes > 0));
    }
}

QAction* Commands::action(const char* name) const
{
    const auto found = std::find_if(m_actions.begin(), m_actions.end(), [name](const QAction* action) {
        return action->objectName() == QLatin1String(name);
    });
    Q_ASSERT(found != m_actions.end());
    return *found;
}

} // namespace ko
