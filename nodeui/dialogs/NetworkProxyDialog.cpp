#include "dialogs/NetworkProxyDialog.h"

#include "ui_NetworkProxyDialog.h"
#include "utils/Retranslation.h"

namespace ko {

NetworkProxyDialog::NetworkProxyDialog(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , m_ui(new Ui::NetworkProxyDialog)
{
    m_ui->setupUi(this);
    onLanguageChange(this, [this] { retranslateForm(*m_ui, this); });
    m_ui->proxyWidget->setup();
}

NetworkProxyDialog::~NetworkProxyDialog() = default;

void NetworkProxyDialog::accept()
{
    m_ui->proxyWidget->apply();
    QDialog::accept();
}

} // namespace ko
