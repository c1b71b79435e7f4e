#include "dialogs/NetworkProxyWidget.h"

#include "ko/GlobalNetworkProxy.h"
#include "ko/NodeDB.h"
#include "ko/connect.h"
#include "utils/ProxyFields.h"
#include "utils/Retranslation.h"

#include "ui_NetworkProxyWidget.h"

#include <QCoreApplication>

namespace ko {

namespace {

const QLatin1Char separator(';');

ProxyFields fieldsOf(const Ui::NetworkProxyWidget& ui)
{
    const ProxyFields fields = {ui.proxyLineEdit, ui.proxySpinBox, ui.userNameLineEdit, ui.passWordLineEdit};
    return fields;
}

} // namespace

NetworkProxyWidget::NetworkProxyWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::NetworkProxyWidget)
{
    m_ui->setupUi(this);
    setTranslated(this, [this] {
        retranslateForm(*m_ui, this);
        m_ui->exceptionsLineEdit->setToolTip(
            tr("Enter hosts and domains for which proxy settings should not be used.<br>Use semicolon (;) as "
               "separator and asterisk (*) for wildcards, e.g.:<br><b>*.example.org; 10.*; 192.168.*</b>"));
        describePlainly(this);
    });
}

NetworkProxyWidget::~NetworkProxyWidget() = default;

void NetworkProxyWidget::setup()
{
    const GlobalNetworkProxy& proxy = NodeDB::getDB()->globalProxy();
    m_ui->proxyGroupBox->setChecked(proxy.useProxy());
    fieldsOf(*m_ui).load(proxy);
    m_ui->exceptionsLineEdit->setText(proxy.exceptionsAssembled(separator));

    ko::connect(m_ui->proxyGroupBox, SIGNAL(toggled(bool)), this, SIGNAL(setDirty()));
    ko::connect(m_ui->proxyLineEdit, SIGNAL(textChanged(QString)), this, SIGNAL(setDirty()));
    ko::connect(m_ui->proxySpinBox, SIGNAL(valueChanged(int)), this, SIGNAL(setDirty()));
    ko::connect(m_ui->exceptionsLineEdit, SIGNAL(textChanged(QString)), this, SIGNAL(setDirty()));
}

void NetworkProxyWidget::apply()
{
    GlobalNetworkProxy& proxy = NodeDB::getDB()->globalProxy();
    proxy.setUseProxy(m_ui->proxyGroupBox->isChecked());
    fieldsOf(*m_ui).store(proxy);
    proxy.setSaveProxyPassword(true);
    proxy.setExceptions(m_ui->exceptionsLineEdit->text(), separator);
}

void NetworkProxyWidget::setApplicationProxy() {}

} // namespace ko
