#ifndef KO_MAINWINDOW_H
#define KO_MAINWINDOW_H

#include "ko/OncePerFrame.h"
#include "ko/TrContext.h"
#include "model/NodeData.h"

#include <QMainWindow>
#include <QSet>

class QComboBox;
class QDialog;
class QLabel;
class QLineEdit;
class QToolBar;

namespace ko {

class CameraChecking;
class Commands;
class DetailsDock;
class EmptyState;
class EnvironmentNotice;
class HostNodeDB;
class ListLoading;
class NodeListModel;
class NodeListView;
class PlaceDock;
class PropertyColumns;
class SavedSearchMenu;
class StoreNotice;
class SurveyCommands;
class UndoCommands;
class UndoNotice;

/// The client's window: the list of all nodes and what can be done with them.
class MainWindow : public QMainWindow
{
    Q_OBJECT
    KO_TR_CONTEXT(MainWindow)

public:
    /// The database outlives the window.
    explicit MainWindow(HostNodeDB& db, QWidget* parent = nullptr);
    ~MainWindow() override;

    HostNodeDB& database() const { return m_db; }
    NodeListView& list() const { return *m_view; }
    CameraChecking& checking() const { return *m_checking; }
    UndoCommands& undoing() const { return *m_undoing; }

    /// What the title says instead of the name of the file.
    void setDatabaseName(const QString& name);
    /// Whether the database is a desk's copy of a site.
    bool isShared() const { return !m_name.isEmpty(); }

    /// Shows the nodes of all types that a search finds.
    void find(const QString& search);

    /// Shows a text in the status bar for a while.
    void say(const QString& text);

    /// Says what was done with the database, with a button beside it that undoes it.
    void sayDone(const QString& text);

    /// Runs a dialog in which the environment can be switched.
    void exec(QDialog& dialog);

    /// Takes into the list at once what would come with the next frame.
    void applyChanges();

    /// Closes the window, if nothing keeps it open, so that the program opens another database: a file, or
    /// one that is shared, by its address.
    void openInstead(const QString& database);

    /// What is to be opened when the window has closed; empty when the program is to end.
    QString next() const { return m_next; }

    void importCameras();
    void exportCameras();
    void exportSelected();

signals:
    /// Another database is to be opened, whatever other windows there are; see next().
    void closedForNext();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void retranslate();
    void createList();
    void createEmptyState();
    void createSearch();
    void createTypes();
    void fillTypes();
    void createToolBar();
    void nodeChanged(const NodeID& id);
    void nodeRemoved(const NodeID& id);
    void updateCommands();
    void updateStatus();
    void restoreState();
    int widestType() const;
    void saveState() const;

    HostNodeDB& m_db;
    NodeListModel* const m_model;
    NodeListView* const m_view;
    PropertyColumns* const m_properties;
    QLineEdit* const m_search;
    QLabel* const m_typesLabel;
    QComboBox* const m_types;
    SavedSearchMenu* const m_saved;
    QToolBar* const m_toolBar;
    EmptyState* const m_empty;
    QLabel* const m_counts;
    Commands* const m_commands;
    SurveyCommands* const m_surveys;
    CameraChecking* const m_checking;
    EnvironmentNotice* const m_environment;
    StoreNotice* const m_store;
    UndoCommands* const m_undoing;
    UndoNotice* const m_undoNotice;
    PlaceDock* const m_places;
    ListLoading* m_loading = nullptr;
    DetailsDock* m_details = nullptr; ///< needs the list
    QString m_next;
    QString m_name;          ///< empty: that of the file
    QSet<QString> m_changed; ///< taken into the list together
    QSet<QString> m_removed;
    OncePerFrame m_frame;
};

} // namespace ko

#endif
