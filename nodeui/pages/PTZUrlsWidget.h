#ifndef KO_PTZURLSWIDGET_H
#define KO_PTZURLSWIDGET_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include <QScopedPointer>
#include <QWidget>

namespace Ui {
class PTZUrlsWidget;
}

namespace ko {

class Node;
class NodeHint;

/// Page with the URLs through which a generic camera is driven.
///
/// A URL whose property the node lacks is shown disabled, and written all the same. The page has no
/// read-only mode.
class KO_NODEUI_EXPORT PTZUrlsWidget : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(PTZUrlsWidget)

public:
    explicit PTZUrlsWidget(QWidget* parent);
    ~PTZUrlsWidget() override;

    void init(const NodeHint* hint);
    void init(QString nodeId);
    void accept(Node* node);
    void accept(NodeHint* hint);
    void setReadOnly(bool readOnly);

private:
    Q_DISABLE_COPY(PTZUrlsWidget)

    const QScopedPointer<Ui::PTZUrlsWidget> m_ui;
};

} // namespace ko

#endif
