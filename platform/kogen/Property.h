#ifndef KOGEN_PROPERTY_H
#define KOGEN_PROPERTY_H

#include "kogen/PropertySet.h"

namespace kogen {

template <class T>
struct PropertyTypeName;

template <>
struct PropertyTypeName<QString>
{
    static const char* get() { return "string"; }
};
template <>
struct PropertyTypeName<bool>
{
    static const char* get() { return "bool"; }
};
template <>
struct PropertyTypeName<int>
{
    static const char* get() { return "int"; }
};
template <>
struct PropertyTypeName<float>
{
    static const char* get() { return "float"; }
};
template <>
struct PropertyTypeName<PropertySet>
{
    static const char* get() { return "set"; }
};

/// A property whose value is a T.
template <class T>
class Property : public BaseProperty
{
public:
    Property(const QString& name, const T& value)
        : BaseProperty(name)
        , m_value(value)
    {
    }

    const T& getValue() const { return m_value; }

    QString typeName() const override { return QLatin1String(PropertyTypeName<T>::get()); }
    QVariant value() const override { return QVariant::fromValue(m_value); }

private:
    const T m_value;
};

typedef Property<QString> StringProperty;
typedef Property<bool> BoolProperty;
typedef Property<int> IntProperty;
typedef Property<float> FloatProperty;
typedef Property<PropertySet> PropertySetProperty;

} // namespace kogen

#endif
