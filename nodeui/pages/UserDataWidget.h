#ifndef KO_USERDATAWIDGET_H
#define KO_USERDATAWIDGET_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include <QScopedPointer>
#include <QWidget>

namespace Ui {
class UserDataWidget;
}

namespace ko {

class Node;
class NodeHint;

/// Page on which is entered how an IP device is reached.
///
/// That the proxy is bypassed for the device is not stored with it: it is an entry in the exceptions of
/// the global proxy, which accept() brings in line. While the page is open the option follows changes of
/// the proxy settings. Nothing that is typed is checked.
class KO_NODEUI_EXPORT UserDataWidget : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(UserDataWidget)

public:
    explicit UserDataWidget(QWidget* parent);
    ~UserDataWidget() override;

    /// Fills the page; an option to bypass the proxy that is not offered is hidden and not applied.
    /// Only hints of IP devices may be passed.
    void init(const NodeHint* hint, bool offerProxyBypass);
    void init(QString nodeId, bool offerProxyBypass);
    void accept(Node* node);
    void accept(NodeHint* hint);
    void setReadOnly(bool readOnly);

    /// Puts a port in place, clamped to 0 to 65535. The page never changes it by itself.
    void setPort(int port);

signals:
    /// The address text changed; it may serve as a name for a new node.
    void nameProposal(const QString& name);
    /// The SSL option changed to this Qt::CheckState.
    void sslChanged(int state);

protected:
    /// Brings the exceptions of the global proxy in line with the option for this address.
    void acceptProxy(const QString& address);

private slots:
    void proxySettings();

private:
    Q_DISABLE_COPY(UserDataWidget)

    void offerBypass(bool offer);
    void showChannel(bool supported, int channel);

    const QScopedPointer<Ui::UserDataWidget> m_ui;
};

} // namespace ko

#endif
