#ifndef KO_CUSTOMNETWORKPROXYWIDGET_H
#define KO_CUSTOMNETWORKPROXYWIDGET_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include <QScopedPointer>
#include <QWidget>

namespace Ui {
class CustomNetworkProxyWidget;
}

namespace ko {

class NetworkProxy;
class Node;
class NodeHint;

/// Page on which an IP device gets a proxy of its own instead of the application-wide one.
///
/// The settings are stored as typed, also while the proxy is not used.
class KO_NODEUI_EXPORT CustomNetworkProxyWidget : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(CustomNetworkProxyWidget)

public:
    explicit CustomNetworkProxyWidget(QWidget* parent = nullptr);
    ~CustomNetworkProxyWidget() override;

    void init(const NodeHint* hint);
    void init(QString nodeId);
    void accept(Node* node);
    void accept(NodeHint* hint);
    void setReadOnly(bool readOnly);

private slots:
    void checkBoxStateChanged(int state);

private:
    Q_DISABLE_COPY(CustomNetworkProxyWidget)

    void load(const NetworkProxy& proxy);
    void store(NetworkProxy& proxy) const;
    void setFieldsEnabled(bool enabled);

    const QScopedPointer<Ui::CustomNetworkProxyWidget> m_ui;
};

} // namespace ko

#endif
