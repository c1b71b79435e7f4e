#include "Commands.h"

#include "CameraChecking.h"
#include "ChangePreview.h"
#include "DatabaseCommands.h"
#include "FillInDialog.h"
#include "LanguageMenu.h"
#include "LineIcons.h"
#include "MainWindow.h"
#include "MnemonicText.h"
#include "NodeCommands.h"
#include "NodeListView.h"
#include "NodeRemoval.h"
#include "PlaceCommands.h"
#include "ReadOnlyNotice.h"
#include "RecentMenu.h"
#include "UndoCommands.h"
#include "WindowCommands.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <algorithm>
#include <utility>

namespace ko {

namespace {

enum Needs {
    Nothing,
    OneNode,
    SomeNodes,
    Itself ///< enabled by who does it
};

enum Place {
    InMenu = 0,    ///< only there
    InList = 1,    ///< in the context menu of the list
    InBar = 2,     ///< in the tool bar
    AfterLine = 4, ///< begins a new group
    Edits = 8,     ///< not for who may only read
};

} // namespace

struct Commands::Command
{
    const char* menu;
    const char* name; ///< object name of the action
    const char* text; ///< empty: named by who does it
    const char* tip;
    const char* keys; ///< separated by "; "
    const char* icon; ///< of the desktop's theme
    Needs needs;
    int places;
    void (*run)(MainWindow&);
    bool (*isOn)() = nullptr; ///< of one that is on or off
};

// The search field needs the room of the bar that the first commands of nodes leave.
const Commands::Command Commands::all[] = {
    {QT_TRANSLATE_NOOP("MainWindow", "&File"), "actionNew", QT_TRANSLATE_NOOP("MainWindow", "&New..."),
     QT_TRANSLATE_NOOP("MainWindow", "Makes an empty node database and opens it"), "", "document-new",
     Nothing, InMenu, &DatabaseCommands::create},
    {QT_TRANSLATE_NOOP("MainWindow", "&File"), "actionOpen", QT_TRANSLATE_NOOP("MainWindow", "&Open..."),
     QT_TRANSLATE_NOOP("MainWindow", "Opens another node database"), "Ctrl+O", "document-open", Nothing,
     InMenu, &DatabaseCommands::open},
    {QT_TRANSLATE_NOOP("MainWindow", "&File"), "actionBackUp", QT_TRANSLATE_NOOP("MainWindow", "&Back Up..."),
     QT_TRANSLATE_NOOP("MainWindow", "Copies the node database into a file"), "", "", Nothing, AfterLine,
     &DatabaseCommands::backUp},
    {QT_TRANSLATE_NOOP("MainWindow", "&File"), "actionRestore",
     QT_TRANSLATE_NOOP("MainWindow", "Res&tore..."),
     QT_TRANSLATE_NOOP("MainWindow", "Restores the node database from a backup"), "", "", Nothing, Edits,
     &DatabaseCommands::restore},
    {QT_TRANSLATE_NOOP("MainWindow", "&File"), "actionImport", QT_TRANSLATE_NOOP("MainWindow", "&Import..."),
     QT_TRANSLATE_NOOP("MainWindow", "Adds the cameras of a site survey (CSV)"), "", "document-import",
     Nothing, AfterLine | Edits, [](MainWindow& window) { window.importCameras(); }},
    {QT_TRANSLATE_NOOP("MainWindow", "&File"), "actionExport", QT_TRANSLATE_NOOP("MainWindow", "&Export..."),
     QT_TRANSLATE_NOOP("MainWindow", "Writes all cameras into a CSV file"), "", "document-save-as", Nothing,
     InMenu, [](MainWindow& window) { window.exportCameras(); }},
    {QT_TRANSLATE_NOOP("MainWindow", "&File"), "actionExportSelected",
     QT_TRANSLATE_NOOP("MainWindow", "Export &Selected..."),
     QT_TRANSLATE_NOOP("MainWindow", "Writes the selected cameras into a CSV file"), "", "", SomeNodes,
     InMenu, [](MainWindow& window) { window.exportSelected(); }},
    {QT_TRANSLATE_NOOP("MainWindow", "&File"), "actionConnect",
     QT_TRANSLATE_NOOP("MainWindow", "&Connect..."),
     QT_TRANSLATE_NOOP("MainWindow", "Opens a database that is shared with other desks"), "",
     "network-server", Nothing, AfterLine, &WindowCommands::connectToSite},
    {QT_TRANSLATE_NOOP("MainWindow", "&File"), "actionPreferences",
     QT_TRANSLATE_NOOP("MainWindow", "&Preferences..."),
     QT_TRANSLATE_NOOP("MainWindow", "Default paths and the bandwidth"), "", "preferences-system", Nothing,
     AfterLine | Edits, &WindowCommands::editPreferences},
    {QT_TRANSLATE_NOOP("MainWindow", "&File"), "actionQuit", QT_TRANSLATE_NOOP("MainWindow", "&Quit"),
     QT_TRANSLATE_NOOP("MainWindow", "Closes the program"), "Ctrl+Q", "application-exit", Nothing, AfterLine,
     [](MainWindow& window) { window.close(); }},

    {QT_TRANSLATE_NOOP("MainWindow", "&Edit"), "actionUndo", "",
     QT_TRANSLATE_NOOP("MainWindow", "Shows what was changed last, and puts it back"), "Ctrl+Z", "edit-undo",
     Itself, Edits, [](MainWindow& window) { window.undoing().run(UndoStack::Undo); }},
    {QT_TRANSLATE_NOOP("MainWindow", "&Edit"), "actionRedo", "",
     QT_TRANSLATE_NOOP("MainWindow", "Does again what was undone last"), "Ctrl+Shift+Z", "edit-redo", Itself,
     Edits, [](MainWindow& window) { window.undoing().run(UndoStack::Redo); }},
    {QT_TRANSLATE_NOOP("MainWindow", "&Edit"), "actionHistory",
     QT_TRANSLATE_NOOP("MainWindow", "&History..."),
     QT_TRANSLATE_NOOP("MainWindow", "What was done, by whom, and puts it back"), "Ctrl+H", "view-history",
     Nothing, AfterLine, &WindowCommands::showHistory},
    {QT_TRANSLATE_NOOP("MainWindow", "&Edit"), "actionNodeHistory",
     QT_TRANSLATE_NOOP("MainWindow", "History of &Selected..."),
     QT_TRANSLATE_NOOP("MainWindow", "What was done to the selected nodes"), "", "", SomeNodes, InList,
     &WindowCommands::showHistoryOfSelected},

    {QT_TRANSLATE_NOOP("MainWindow", "&Edit"), "actionBackTo", QT_TRANSLATE_NOOP("MainWindow", "&Back to..."),
     QT_TRANSLATE_NOOP("MainWindow", "Shows all nodes as they were before, and puts them back"), "", "",
     Nothing, InMenu, &WindowCommands::showMoment},

    {QT_TRANSLATE_NOOP("MainWindow", "&Node"), "actionAdd", QT_TRANSLATE_NOOP("MainWindow", "&Add..."),
     QT_TRANSLATE_NOOP("MainWindow", "Adds a node"), "Ctrl+N", "list-add", Nothing, InList | InBar | Edits,
     &NodeCommands::add},
    {QT_TRANSLATE_NOOP("MainWindow", "&Node"), "actionEdit", QT_TRANSLATE_NOOP("MainWindow", "&Edit..."),
     QT_TRANSLATE_NOOP("MainWindow", "Changes the selected nodes"), "Ctrl+E; F2", "document-edit", SomeNodes,
     InList | InBar | Edits, &NodeCommands::edit},
    {QT_TRANSLATE_NOOP("MainWindow", "&Node"), "actionRemove", QT_TRANSLATE_NOOP("MainWindow", "&Remove..."),
     QT_TRANSLATE_NOOP("MainWindow", "Removes the selected nodes"), "Del", "list-remove", SomeNodes,
     InList | InBar | Edits, &NodeRemoval::run},
    {QT_TRANSLATE_NOOP("MainWindow", "&Node"), "actionProperties",
     QT_TRANSLATE_NOOP("MainWindow", "&Properties"),
     QT_TRANSLATE_NOOP("MainWindow", "Shows the selected node without changing it"), "Alt+Return",
     "document-properties", OneNode, InList | InBar, &NodeCommands::showProperties},
    {QT_TRANSLATE_NOOP("MainWindow", "&Node"), "actionCredentials",
     QT_TRANSLATE_NOOP("MainWindow", "&User && Password..."),
     QT_TRANSLATE_NOOP("MainWindow", "Gives the selected devices one user name and password"), "Ctrl+U",
     "dialog-password", SomeNodes, InList | AfterLine | Edits, &NodeCommands::editCredentials},
    {QT_TRANSLATE_NOOP("MainWindow", "&Node"), "actionRecording",
     QT_TRANSLATE_NOOP("MainWindow", "Access Re&cordings..."),
     QT_TRANSLATE_NOOP("MainWindow", "Where the recordings of the selected cameras are played from"),
     "Ctrl+R", "folder-videos", SomeNodes, InList | Edits, &NodeCommands::editRecording},
    {QT_TRANSLATE_NOOP("MainWindow", "&Node"), "actionFillIn", QT_TRANSLATE_NOOP("MainWindow", "&Fill In..."),
     QT_TRANSLATE_NOOP("MainWindow",
                       "Asks the selected devices what they are, and stores what you choose of it"),
     "", "", SomeNodes, InList | Edits, [](MainWindow& window) { FillInDialog::run(window); }},
    {QT_TRANSLATE_NOOP("MainWindow", "&Node"), "actionPreview",
     QT_TRANSLATE_NOOP("MainWindow", "Pre&view Changes to Several"),
     QT_TRANSLATE_NOOP("MainWindow", "Shows what would be done to several nodes before it is stored"), "", "",
     Nothing, InMenu, [](MainWindow&) { ChangePreview::setWanted(!ChangePreview::isWanted()); },
     &ChangePreview::isWanted},

    {QT_TRANSLATE_NOOP("MainWindow", "&Node"), "actionPlace",
     QT_TRANSLATE_NOOP("MainWindow", "&Location and Tags..."),
     QT_TRANSLATE_NOOP("MainWindow", "Where the selected devices are, and by what they are grouped"), "", "",
     SomeNodes, InList | Edits, &PlaceCommands::edit},

    {QT_TRANSLATE_NOOP("MainWindow", "&Node"), "actionDuplicate",
     QT_TRANSLATE_NOOP("MainWindow", "&Duplicate..."),
     QT_TRANSLATE_NOOP("MainWindow", "Adds a node that is like the selected one"), "Ctrl+D", "edit-copy",
     OneNode, InList | AfterLine | Edits, &NodeCommands::duplicate},
    {QT_TRANSLATE_NOOP("MainWindow", "&Node"), "actionWebPage",
     QT_TRANSLATE_NOOP("MainWindow", "Open &Web Page"),
     QT_TRANSLATE_NOOP("MainWindow", "Opens the page of the selected device in the browser"), "",
     "internet-web-browser", OneNode, InList, &NodeCommands::openWebPage},
    {QT_TRANSLATE_NOOP("MainWindow", "&Node"), "actionCopyRows",
     QT_TRANSLATE_NOOP("MainWindow", "Copy R&ows"),
     QT_TRANSLATE_NOOP("MainWindow", "Copies the selected rows for a spreadsheet"), "Ctrl+C", "edit-copy",
     SomeNodes, InList, &NodeCommands::copyRows},
    {QT_TRANSLATE_NOOP("MainWindow", "&Node"), "actionCopyAddresses",
     QT_TRANSLATE_NOOP("MainWindow", "Copy Addre&ss"),
     QT_TRANSLATE_NOOP("MainWindow", "Copies the addresses of the selected nodes"), "Ctrl+Shift+C", "",
     SomeNodes, InList, &NodeCommands::copyAddresses},

    {QT_TRANSLATE_NOOP("MainWindow", "Net&work"), "actionProxy",
     QT_TRANSLATE_NOOP("MainWindow", "Network &Proxy..."),
     QT_TRANSLATE_NOOP("MainWindow", "The proxy server of the application"), "", "preferences-system-network",
     Nothing, Edits, &WindowCommands::editProxy},
    {QT_TRANSLATE_NOOP("MainWindow", "Net&work"), "actionEnvironments",
     QT_TRANSLATE_NOOP("MainWindow", "&Environments..."),
     QT_TRANSLATE_NOOP("MainWindow", "The network environments"), "", "", Nothing, Edits,
     &WindowCommands::editEnvironments},
    {QT_TRANSLATE_NOOP("MainWindow", "Net&work"), "actionOverview",
     QT_TRANSLATE_NOOP("MainWindow", "&Find Devices..."),
     QT_TRANSLATE_NOOP("MainWindow", "Nodes that arrive while the network is scanned"), "", "edit-find",
     Nothing, Edits, &WindowCommands::findDevices},
    {QT_TRANSLATE_NOOP("MainWindow", "Net&work"), "actionAddressChanges",
     QT_TRANSLATE_NOOP("MainWindow", "&Seen at a New Address..."),
     QT_TRANSLATE_NOOP("MainWindow", "Devices that a scan found at another address than they have here"), "",
     "", Nothing, Edits, &WindowCommands::showAddressChanges},
    {QT_TRANSLATE_NOOP("MainWindow", "Net&work"), "actionCheck",
     QT_TRANSLATE_NOOP("MainWindow", "&Check Cameras"),
     QT_TRANSLATE_NOOP("MainWindow",
                       "Asks the selected cameras, or all, who they are, and tries their passwords"),
     "F5", "view-refresh", Nothing, InList | AfterLine,
     [](MainWindow& window) { window.checking().check(); }},
    {QT_TRANSLATE_NOOP("MainWindow", "Net&work"), "actionAcceptDevices",
     QT_TRANSLATE_NOOP("MainWindow", "&Accept as This Camera..."),
     QT_TRANSLATE_NOOP("MainWindow", "Treats the device that answers now as this camera from now on"), "", "",
     SomeNodes, InList | Edits, [](MainWindow& window) { window.checking().acceptDevices(); }},
    {QT_TRANSLATE_NOOP("MainWindow", "Net&work"), "actionAllowClearPasswords",
     QT_TRANSLATE_NOOP("MainWindow", "A&llow Clear Password..."),
     QT_TRANSLATE_NOOP("MainWindow",
                       "Sends the password unencrypted to cameras that accept it in no other way"),
     "", "", SomeNodes, InList | Edits, [](MainWindow& window) { window.checking().allowClearPasswords(); }},

    {QT_TRANSLATE_NOOP("MainWindow", "&View"), "actionColumns",
     QT_TRANSLATE_NOOP("MainWindow", "&Columns..."),
     QT_TRANSLATE_NOOP("MainWindow", "Which columns the list has"), "", "", Nothing, InMenu,
     [](MainWindow& window) { window.list().chooseColumns(); }},
    {QT_TRANSLATE_NOOP("MainWindow", "&View"), "actionAuditLog",
     QT_TRANSLATE_NOOP("MainWindow", "&Audit Log..."),
     QT_TRANSLATE_NOOP("MainWindow", "Who changed what, and when"), "Ctrl+L", "view-history", Nothing,
     AfterLine, &WindowCommands::showAuditLog},
    {QT_TRANSLATE_NOOP("MainWindow", "&View"), "actionDatabase",
     QT_TRANSLATE_NOOP("MainWindow", "Node &Database..."),
     QT_TRANSLATE_NOOP("MainWindow", "Everything that is stored"), "", "", Nothing, InMenu,
     &WindowCommands::showDatabase},

    {QT_TRANSLATE_NOOP("MainWindow", "&Help"), "actionManual", QT_TRANSLATE_NOOP("MainWindow", "&Manual"),
     QT_TRANSLATE_NOOP("MainWindow", "Explains what the window in front is for"), "F1", "help-contents",
     Nothing, InMenu, &WindowCommands::showManual},
    {QT_TRANSLATE_NOOP("MainWindow", "&Help"), "actionAbout", QT_TRANSLATE_NOOP("MainWindow", "&About"), "",
     "", "help-about", Nothing, InMenu, &WindowCommands::about},
};

Commands::Commands(MainWindow& window)
    : QObject(&window)
    , m_window(window)
{
    QMenu* menu = nullptr;
    const char* title = "";
    for (const Command& command : all) {
        if (qstrcmp(title, command.menu) != 0) {
            menu = window.menuBar()->addMenu(QString());
            m_menus.append({menu, command.menu});
        }
        title = command.menu;
        if (command.places & AfterLine)
            menu->addSeparator();
        QAction* action = createAction(command);
        menu->addAction(action);
        if (command.places & InList)
            window.list().addAction(action);
        m_actions.append(action);
    }
    menuOf("actionOpen")->insertMenu(menuOf("actionOpen")->actions().at(2), new RecentMenu(window));
    new LanguageMenu(*menuOf("actionColumns"), &window);
    retranslate();
}

void Commands::retranslate()
{
    for (const Menu& menu : std::as_const(m_menus))
        menu.menu->setTitle(MainWindow::tr(menu.title));
    for (int i = 0; i < m_actions.size(); ++i) {
        if (*all[i].tip)
            m_actions.at(i)->setStatusTip(MainWindow::tr(all[i].tip));
        if (!*all[i].text)
            continue; // named by who does it
        const QString text = MainWindow::tr(all[i].text);
        m_actions.at(i)->setText(text);
        // The toolkit would leave the brackets of "編集(&E)..." on the tool button.
        m_actions.at(i)->setIconText(MnemonicText::without(text).remove(QLatin1String("...")));
    }
}

QMenu* Commands::menuOf(const char* name) const
{
    const auto found =
        std::find_if(m_menus.begin(), m_menus.end(), [action = action(name)](const Menu& menu) {
            return menu.menu->actions().contains(action);
        });
    Q_ASSERT(found != m_menus.end());
    return found->menu;
}

QAction* Commands::createAction(const Command& command)
{
    QAction* action = new QAction(themeIcon(QLatin1String(command.icon)), QString(), &m_window);
    action->setObjectName(QLatin1String(command.name));
    if (command.isOn) {
        action->setCheckable(true);
        action->setChecked(command.isOn());
    }
    action->setShortcuts(QKeySequence::listFromString(QLatin1String(command.keys)));
    connect(action, &QAction::triggered, &m_window, [this, &command] {
        if (!(command.places & Edits))
            command.run(m_window);
        else if (!ReadOnlyNotice::refuses(m_window.database(), &m_window))
            ReadOnlyNotice::watch(m_window.database(), &m_window, [&] { command.run(m_window); });
    });
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
        if (needs == Itself)
            continue;
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
