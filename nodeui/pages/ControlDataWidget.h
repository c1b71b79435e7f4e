#ifndef KO_CONTROLDATAWIDGET_H
#define KO_CONTROLDATAWIDGET_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include "ko/Types.h"

#include <QScopedPointer>
#include <QWidget>

namespace Ui {
class ControlDataWidget;
}

namespace ko {

class Node;
class NodeHint;

/// Page on which an IP device gets its control mode and the class of its connection.
///
/// A device whose connection is as the database says stores -1 and follows the database from then on.
/// New devices start with the host's defaults: nothing is written into hints.
class KO_NODEUI_EXPORT ControlDataWidget : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(ControlDataWidget)

public:
    explicit ControlDataWidget(QWidget* parent);
    ~ControlDataWidget() override;

    void init(const NodeHint* hint);
    void init(QString nodeId);
    void accept(Node* node);
    void accept(NodeHint* hint);
    void setReadOnly(bool readOnly);

    /// Resource path of the picture of a value; unknown values have that of SlowLocal and FullControl.
    static const char* bandwidthIcon(ENodeBandwidth bandwidth, bool alternative);
    static const char* controlModeIcon(ENodeControl mode, bool alternative);

private:
    Q_DISABLE_COPY(ControlDataWidget)

    const QScopedPointer<Ui::ControlDataWidget> m_ui;
};

} // namespace ko

#endif
