#ifndef KO_PREFERENCESDIALOG_H
#define KO_PREFERENCESDIALOG_H

#include <QDialog>

class QComboBox;
class QLineEdit;

namespace ko {

class HostNodeDB;

/// The settings that hold for the whole database. Written on OK.
class PreferencesDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PreferencesDialog(HostNodeDB& db, QWidget* parent = nullptr);

    void accept() override;

private:
    void browse();

    HostNodeDB& m_db;
    QLineEdit* const m_path;
    QLineEdit* const m_preview;
    QComboBox* const m_bandwidth;
};

} // namespace ko

#endif
