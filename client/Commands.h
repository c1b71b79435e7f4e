#ifndef KO_COMMANDS_H
#define KO_COMMANDS_H

#include <QObject>
#include <QVector>

class QAction;
class QMenu;
class QToolBar;

namespace ko {

class MainWindow;

/// All that a user can do in the main window, as entries of its menus, its tool bar and the list's context
/// menu.
class Commands : public QObject
{
    Q_OBJECT

public:
    /// Fills the menus and the list's context menu; the window owns it.
    explicit Commands(MainWindow& window);

    void fill(QToolBar& bar) const;

    /// Names everything in the language that the program has now.
    void retranslate();

    /// Enables what can be done while this many nodes are selected.
    void setSelected(int nodes);

    /// By its object name; there must be one.
    QAction* action(const char* name) const;

    /// The menu in which the action of that name is.
    QMenu* menuOf(const char* name) const;

private:
    struct Command;
    static const Command all[];

    struct Menu
    {
        QMenu* menu;
        const char* title;
    };

    QAction* createAction(const Command& command);

    MainWindow& m_window;
    QVector<Menu> m_menus;
    QVector<QAction*> m_actions; ///< one for each command
};

} // namespace ko

#endif
