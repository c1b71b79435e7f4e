#ifndef KO_CONNECTDIALOG_H
#define KO_CONNECTDIALOG_H

#include "ko/TrContext.h"
#include "sharing/SharingTypes.h"

#include <QDialog>

#include <memory>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace ko {

class SiteProbe;

/// Asks for the address of a shared database, and can try it. OK tries it, too, and stays open with what is
/// wrong.
class ConnectDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(ConnectDialog)

public:
    explicit ConnectDialog(QWidget* parent);
    ~ConnectDialog() override;

    /// With the password, if one was given.
    QString address() const;

    void accept() override;

private:
    QLineEdit* addField(QFormLayout* form, const char* name);
    void createFields();
    void createButtons();
    void retranslate();
    void fillIn(const QString& address);
    void probe(bool accepts);
    void take(const SiteGreeting& greeting, const SharingFailure& failure);

    QComboBox* const m_recent;
    QLineEdit* m_host = nullptr;
    QLineEdit* m_port = nullptr;
    QLineEdit* m_database = nullptr;
    QLineEdit* m_user = nullptr;
    QLineEdit* m_password = nullptr;
    QCheckBox* const m_keep;
    QComboBox* const m_tls;
    QLabel* const m_result;
    QDialogButtonBox* const m_buttons;
    QPushButton* m_test = nullptr;
    QFormLayout* const m_form;
    QString m_given;                    ///< what the fields were filled from, which may say more than they
    std::unique_ptr<SiteProbe> m_probe; ///< under way
    bool m_accepts = false;             ///< when it ends well
};

} // namespace ko

#endif
