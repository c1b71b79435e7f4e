#ifndef KO_MAINWINDOW_H
#define KO_MAINWINDOW_H

#include "model/NodeData.h"
#include "model/StoreError.h"

#include <QMainWindow>
#include <QPointer>
#include <QSet>

class QComboBox;
class QLabel;
class QLineEdit;

namespace ko {

class EnvironmentNotice;
class HostNodeDB;
class NodeListModel;
class NodeListView;
class PlainMessageBox;
class SurveyCommands;

/// The client's window: the list of all nodes and what can be done with them.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The database outlives the window.
    explicit MainWindow(HostNodeDB& db, QWidget* parent = nullptr);
    ~MainWindow() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private slots:
    void addNode();
    void editNode();
    void removeNodes();
    void showProperties();
    void editRecording();
    void editCredentials();
    void editProxy();
    void editEnvironments();
    void editPreferences();
    void showAuditLog();
    void showOverview();
    void showAddressChanges();
    void showDatabase();
    void importCameras();
    void exportCameras();
    void about();

    void nodeChanged(ko::NodeID id);
    void nodeRemoved(ko::NodeID id);
    void applyChanges();
    void updateActions();
    void updateStatus();

    void storeFailed(const ko::StoreError& error);
    void storeRecovered();

private:
    struct Command;

    void createList();
    void createCommands();
    void createToolBar();
    void openEditor(const QString& id, bool readOnly);
    QStringList selectedNames(const QStringList& ids) const;
    QStringList selectedDevices() const;
    QString unstoredText() const;
    void restoreState();
    void saveState() const;

    HostNodeDB& m_db;
    NodeListModel* const m_model;
    NodeListView* const m_view;
    QLineEdit* const m_search;
    QComboBox* const m_types;
    QLabel* const m_counts;
    SurveyCommands* const m_surveys;
    EnvironmentNotice* const m_environment;
    QList<QAction*> m_forOne;  ///< enabled while one node is selected
    QList<QAction*> m_forSome; ///< enabled while at least one node is selected
    QSet<QString> m_changed;   ///< taken into the list together at the end of the turn
    QSet<QString> m_removed;
    QPointer<PlainMessageBox> m_failure;
    bool m_isImporting = false; ///< whose report tells when storing fails
};

} // namespace ko

#endif
