#include "inspector/IPDeviceInspectorWidget.h"

namespace ko {

IPDeviceInspectorWidget::IPDeviceInspectorWidget(QString id, bool readOnly, QWidget* parent, unsigned flags)
    : InspectorWidget(id, readOnly, parent, flags)
{
}

IPDeviceInspectorWidget::IPDeviceInspectorWidget(NodeHint& hint, QWidget* parent, unsigned flags)
    : InspectorWidget(hint, parent, flags)
{
}

IPDeviceInspectorWidget::~IPDeviceInspectorWidget() = default;

void IPDeviceInspectorWidget::ok() {}

void IPDeviceInspectorWidget::cancel() {}

} // namespace ko
