#ifndef KO_IPDEVICEINSPECTORWIDGET_H
#define KO_IPDEVICEINSPECTORWIDGET_H

#include "inspector/InspectorWidget.h"

namespace ko {

/// Base of the editors of IP devices. It applies nothing: ok() does not even record the name, so an
/// inspector that has pages overrides ok() and calls InspectorWidget::ok() itself.
class KO_NODEUI_EXPORT IPDeviceInspectorWidget : public InspectorWidget
{
    Q_OBJECT

public:
    IPDeviceInspectorWidget(QString id, bool readOnly, QWidget* parent, unsigned flags);
    IPDeviceInspectorWidget(NodeHint& hint, QWidget* parent, unsigned flags);
    ~IPDeviceInspectorWidget() override;

    void ok() override;
    void cancel() override;
};

} // namespace ko

#endif
