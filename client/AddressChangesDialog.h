#ifndef KO_ADDRESSCHANGESDIALOG_H
#define KO_ADDRESSCHANGESDIALOG_H

#include "discovery/DeviceIntake.h"
#include "ko/TrContext.h"

#include <QDialog>

class QPushButton;
class QTableWidget;

namespace ko {

/// "Seen at a new address": devices that a scan found elsewhere, for the user to accept or dismiss.
class AddressChangesDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(AddressChangesDialog)

public:
    explicit AddressChangesDialog(DeviceIntake& intake, QWidget* parent = nullptr);

private:
    void refresh();
    void updateButtons();
    QVector<AddressChange> selected() const;

    DeviceIntake& m_intake;
    QVector<AddressChange> m_changes; ///< in the order of the rows
    QTableWidget* const m_table;
    QPushButton* m_accept;
    QPushButton* m_acceptAll;
    QPushButton* m_dismiss;
};

} // namespace ko

#endif
