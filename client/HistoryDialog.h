#ifndef KO_HISTORYDIALOG_H
#define KO_HISTORYDIALOG_H

#include "AlterationModel.h"
#include "HistoryModel.h"
#include "ko/TrContext.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QPushButton;
class QTableView;

namespace ko {

class HistoryFilterBar;
class HostNodeDB;

/// What was done to the database, by whom and when, and what each change set changed; any of it can be put
/// back.
class HistoryDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(HistoryDialog)

public:
    /// What is shown at first; a check box lifts it.
    struct Scope
    {
        QStringList nodes;
        qint64 changeSet = 0; ///< from this one on, backwards; 0: from the newest
    };

    HistoryDialog(HostNodeDB& db, const Scope& scope, QWidget* parent);
    ~HistoryDialog() override;

    /// The change set at which the user wants to see the database as it was, if that closed the window.
    std::optional<ChangeSetRow> backTo() const { return m_backTo; }

    /// What was put back last, for a status bar; empty if nothing was.
    QString whatWasPutBack() const { return m_done; }

private:
    void createTables();
    void createButtons();
    void retranslate();
    QString scopeText() const;
    void showFound();
    void showSelected();
    void showState();
    QVector<ChangeSetRow> selectedSets() const;
    void putBackSets();
    void putBackLines();
    void putBack(const QVector<Alteration>& alterations, const QVector<ChangeSetRow>& sets);
    void exportFound();
    void askHowMuchToKeep();
    void goBack();

    HostNodeDB& m_db;
    const Scope m_scope;
    HistoryModel m_sets;
    AlterationModel m_changes;
    HistoryFilterBar* const m_filter;
    QCheckBox* const m_onlyScope;
    QTableView* const m_setsView;
    QTableView* const m_changesView;
    QLabel* const m_setsLabel;
    QLabel* const m_changesLabel;
    QLabel* const m_state;
    QPushButton* m_putBack = nullptr;
    QPushButton* m_putBackLines = nullptr;
    QPushButton* m_export = nullptr;
    QPushButton* m_keep = nullptr;
    QPushButton* m_backToHere = nullptr;
    std::optional<ChangeSetRow> m_backTo;
    QString m_done;
};

} // namespace ko

#endif
