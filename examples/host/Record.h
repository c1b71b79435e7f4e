#ifndef EXAMPLE_RECORD_H
#define EXAMPLE_RECORD_H

#include "ko/Types.h"
#include "kogen/Property.h"

namespace example {

/// Gives Base, a ko::Node or ko::NodeHint, its properties: the typed pairs over one property set.
template <class Base>
class Record : public Base
{
public:
    explicit Record(ko::ENodeType type)
        : Base(type)
    {
    }

    const kogen::PropertySet& properties() const override { return m_properties; }
    bool hasProperty(const QString& name) const override { return m_properties.contains(name); }

    bool boolProperty(const QString& name, bool other) const override { return get(name, other); }
    void setBoolProperty(const QString& name, bool value) override { set(name, value); }
    int intProperty(const QString& name, int other) const override { return get(name, other); }
    void setIntProperty(const QString& name, int value) override { set(name, value); }
    QString stringProperty(const QString& name, const QString& other) const override
    {
        return get(name, other);
    }
    void setStringProperty(const QString& name, const QString& value) override { set(name, value); }
    float floatProperty(const QString& name, float other) const override { return get(name, other); }
    void setFloatProperty(const QString& name, float value) override { set(name, value); }
    kogen::PropertySet propertySetProperty(const QString& name,
                                           const kogen::PropertySet& other) const override
    {
        return get(name, other);
    }
    void setPropertySetProperty(const QString& name, const kogen::PropertySet& value) override
    {
        set(name, value);
    }

    void addProperty(const kogen::BaseProperty& property) override
    {
        add<bool>(property) || add<int>(property) || add<QString>(property) || add<float>(property) ||
            add<kogen::PropertySet>(property);
    }

private:
    template <class T>
    T get(const QString& name, const T& other) const
    {
        const auto property = m_properties[name].template cast<kogen::Property<T>>();
        return property.null() ? other : property->getValue();
    }

    template <class T>
    void set(const QString& name, const T& value)
    {
        m_properties.insert(kom::makeSmart<kogen::Property<T>>(name, value));
    }

    template <class T>
    bool add(const kogen::BaseProperty& property)
    {
        const auto* typed = dynamic_cast<const kogen::Property<T>*>(&property);
        if (typed)
            set(typed->propertyName(), typed->getValue());
        return typed;
    }

    kogen::PropertySet m_properties;
};

} // namespace example

#endif
