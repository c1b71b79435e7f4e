#include "utils/Fields.h"

#include "ko/PropertyAccess.h"

#include <QMetaProperty>

namespace ko {

void setField(QWidget* field, const QVariant& value)
{
    field->metaObject()->userProperty().write(field, value);
}

QVariant fieldValue(const QWidget* field)
{
    return field->metaObject()->userProperty().read(field);
}

void loadField(const PropertyAccess& from, const QString& key, QWidget* field)
{
    switch (fieldValue(field).userType()) {
    case QMetaType::Bool:
        return setField(field, from.boolProperty(key, false));
    case QMetaType::Int:
        return setField(field, from.intProperty(key, 0));
    default:
        return setField(field, from.stringProperty(key, QString()));
    }
}

void storeField(PropertyAccess& to, const QString& key, const QWidget* field)
{
    const QVariant value = fieldValue(field);
    switch (value.userType()) {
    case QMetaType::Bool:
        return to.setBoolProperty(key, value.toBool());
    case QMetaType::Int:
        return to.setIntProperty(key, value.toInt());
    default:
        return to.setStringProperty(key, value.toString());
    }
}

bool offer(const PropertyAccess& node, const QString& key, QWidget* field)
{
    const bool offered = node.hasProperty(key);
    if (!offered)
        field->setEnabled(false);
    return offered;
}

void loadOffered(const PropertyAccess& node, const QString& key, QWidget* field)
{
    if (offer(node, key, field))
        loadField(node, key, field);
}

void setFieldReadOnly(QWidget* field, bool readOnly)
{
    if (field->metaObject()->indexOfProperty("readOnly") < 0) {
        field->setEnabled(!readOnly);
        return;
    }
    field->setProperty("readOnly", readOnly);
    field->setProperty("frame", !readOnly);
}

} // namespace ko
