#ifndef KO_AUDITLOGDIALOG_H
#define KO_AUDITLOGDIALOG_H

#include "ko/TrContext.h"

#include <QDialog>

class QLineEdit;
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

private:
    void search(const QString& text);
    void copy() const;

    AuditLogModel* const m_model;
    QSortFilterProxyModel* const m_found;
    QTableView* const m_view;
};

} // namespace ko

#endif
