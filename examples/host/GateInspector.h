#ifndef EXAMPLE_GATEINSPECTOR_H
#define EXAMPLE_GATEINSPECTOR_H

#include "inspector/InspectorWidget.h"

class QLineEdit;

namespace ko {
class LayoutOptionsWidget;
class PropertyAccess;
} // namespace ko

namespace example {

/// The editor of a gate: two fields of its own and a page of the library.
class GateInspector : public ko::InspectorWidget
{
    Q_OBJECT

public:
    GateInspector(const QString& id, bool readOnly, unsigned flags);
    GateInspector(ko::NodeHint& hint, unsigned flags);

    void ok() override;

private:
    void build();
    void load(const ko::PropertyAccess& from);
    void store(ko::PropertyAccess* to) const;

    QLineEdit* m_name;
    QLineEdit* m_place;
    ko::LayoutOptionsWidget* m_options;
};

} // namespace example

#endif
