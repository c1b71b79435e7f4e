#ifndef KO_FIELDS_H
#define KO_FIELDS_H

#include "NodeUIExport.h"

#include <QVariant>
#include <QWidget>

namespace ko {

class PropertyAccess;

// What forms do with their fields: line edits, spin boxes, check boxes and radio buttons. A field has one
// value, a text, a number or whether it is checked; so a form names each field once, in a table.

KO_NODEUI_EXPORT void setField(QWidget* field, const QVariant& value);
KO_NODEUI_EXPORT QVariant fieldValue(const QWidget* field);

/// Copies the value into one that has its type.
template <class T>
void takeField(const QWidget* field, T* to)
{
    *to = fieldValue(field).value<T>();
}

/// Shows a property of the field's type: an empty text, 0 or unchecked where it is absent.
KO_NODEUI_EXPORT void loadField(const PropertyAccess& from, const QString& key, QWidget* field);
KO_NODEUI_EXPORT void storeField(PropertyAccess& to, const QString& key, const QWidget* field);

/// Whether \a node has the property that the field is for; disables the field if not.
KO_NODEUI_EXPORT bool offer(const PropertyAccess& node, const QString& key, QWidget* field);

/// Loads the property if it is there, else disables the field.
KO_NODEUI_EXPORT void loadOffered(const PropertyAccess& node, const QString& key, QWidget* field);

/// Gives a field its look for reading or for editing: what can be read-only loses its frame, the rest is
/// disabled.
KO_NODEUI_EXPORT void setFieldReadOnly(QWidget* field, bool readOnly);

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
