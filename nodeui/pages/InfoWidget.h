#ifndef KO_INFOWIDGET_H
#define KO_INFOWIDGET_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include <QScopedPointer>
#include <QWidget>

namespace Ui {
class InfoWidget;
}

namespace ko {

class Node;
class NodeHint;

/// Page that shows what an IP device reported about itself.
///
/// Model, version and MAC address are written back; the factory address and the current addresses are
/// shown only, although setReadOnly(false) lets the former be edited. init() appends to the list of
/// addresses and does not clear it.
class KO_NODEUI_EXPORT InfoWidget : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(InfoWidget)

public:
    explicit InfoWidget(QWidget* parent);
    ~InfoWidget() override;

    void init(const NodeHint* hint);
    void init(QString nodeId);
    void accept(Node* node);
    void accept(NodeHint* hint);
    void setReadOnly(bool readOnly);

private:
    Q_DISABLE_COPY(InfoWidget)

    const QScopedPointer<Ui::InfoWidget> m_ui;
    bool m_isFactoryIPUnknown = false;
};

} // namespace ko

#endif
