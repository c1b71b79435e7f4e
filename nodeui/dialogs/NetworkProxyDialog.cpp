#include "dialogs/NetworkProxyDialog.h"

#include "ui_NetworkProxyDialog.h"

namespace ko {

NetworkProxyDialog::NetworkProxyDialog(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , m_ui(new Ui::NetworkProxyDialog)
{
    m_ui->setupUi(this);
    m_ui->proxyWidget->setup();
}

NetworkProxyDialog::~NetworkProxyDialog() = default;

void NetworkProxyDialog::accept()
{
    m_ui->proxyWidget->apply();
    QDialog::accept();
}

} // namespace ko
