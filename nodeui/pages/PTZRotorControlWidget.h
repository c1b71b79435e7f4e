#ifndef KO_PTZROTORCONTROLWIDGET_H
#define KO_PTZROTORCONTROLWIDGET_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include <QScopedPointer>
#include <QWidget>

namespace Ui {
class PTZRotorControlWidget;
}

namespace ko {

class Node;
class NodeHint;

/// Page that describes the pan/tilt head behind a camera and how the joystick drives it.
///
/// A setting whose property the node lacks is shown disabled, and written all the same: accept() always
/// writes all seven. setReadOnly() leaves the head's address and zoom as they are.
class KO_NODEUI_EXPORT PTZRotorControlWidget : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(PTZRotorControlWidget)

public:
    explicit PTZRotorControlWidget(QWidget* parent);
    ~PTZRotorControlWidget() override;

    void init(const NodeHint* hint);
    void init(QString nodeId);
    void accept(Node* node);
    void accept(NodeHint* hint);
    void setReadOnly(bool readOnly);

private slots:
    void enableRotorHeadSettings(int index);

private:
    Q_DISABLE_COPY(PTZRotorControlWidget)

    const QScopedPointer<Ui::PTZRotorControlWidget> m_ui;
};

} // namespace ko

#endif
