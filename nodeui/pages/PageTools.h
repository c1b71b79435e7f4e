#ifndef KO_PAGETOOLS_H
#define KO_PAGETOOLS_H

#include "ko/IPDeviceNode.h"

namespace ko {

// What several pages need.

/// The node as an IP device; null when there is none or it is another kind of node.
kom::smart<const IPDeviceNode> deviceNode(const QString& nodeId);

/// Gives a line edit or spin box its look for reading or for editing.
template <class Field>
void setFieldReadOnly(Field* field, bool readOnly)
{
    field->setReadOnly(readOnly);
    field->setFrame(!readOnly);
}

/// Selects the item whose data equal \a value; no item if there is none. Returns its index.
template <class ComboBox, class Value>
int selectData(ComboBox* comboBox, const Value& value)
{
    const int index = comboBox->findData(value, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
    comboBox->setCurrentIndex(index);
    return index;
}

} // namespace ko

#endif
