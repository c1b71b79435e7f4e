#ifndef KO_AUDITLOGDIALOG_H
#define KO_AUDITLOGDIALOG_H

#include "ko/TrContext.h"

#include <QDialog>

#include <functional>

class QDialogButtonBox;
class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;

namespace ko {

class AuditLog;
class AuditLogModel;

/// Who changed what, and when: newest first, searchable, copied with Ctrl+C.
class AuditLogDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(AuditLogDialog)

public:
    explicit AuditLogDialog(AuditLog& log, QWidget* parent = nullptr);
    ~AuditLogDialog() override;

    /// What shows the change set of an entry; without it the button for that is disabled.
    void setHistory(const std::function<void(qint64 changeSet)>& show);

private:
    void createView();
    void createHistory(QDialogButtonBox& buttons);
    qint64 selectedChangeSet() const;
    void enableHistory();
    void search(const QString& text);
    void copy() const;

    AuditLogModel* const m_model;
    QSortFilterProxyModel* const m_found;
    QTableView* const m_view;
    QPushButton* m_history = nullptr;
    std::function<void(qint64)> m_showHistory;
};

} // namespace ko

#endif
