#ifndef KO_NETWORKPROXYDIALOG_H
#define KO_NETWORKPROXYDIALOG_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include <QDialog>
#include <QScopedPointer>

namespace Ui {
class NetworkProxyDialog;
}

namespace ko {

/// Dialog around NetworkProxyWidget: reads when it is made, writes on OK.
class KO_NODEUI_EXPORT NetworkProxyDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(NetworkProxyDialog)

public:
    explicit NetworkProxyDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~NetworkProxyDialog() override;

private:
    Q_DISABLE_COPY(NetworkProxyDialog)

    void accept() override;

    const QScopedPointer<Ui::NetworkProxyDialog> m_ui;
};

} // namespace ko

#endif
