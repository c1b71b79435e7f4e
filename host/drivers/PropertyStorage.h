#ifndef KO_PROPERTYSTORAGE_H
#define KO_PROPERTYSTORAGE_H

#include "kogen/Property.h"
#include "model/PropertyList.h"

#include <memory>

namespace ko {

/// Implements the typed access of \a Base, a kind of PropertyAccess, over one pair of untyped operations.
template <class Base>
class PropertyStorage : public Base
{
public:
    const kogen::PropertySet& properties() const override
    {
        if (!m_set) {
            m_set = std::make_unique<kogen::PropertySet>();
            const PropertyList all = list();
            for (const PropertyList::Entry& entry : all)
                m_set->insert(PropertyList::toProperty(entry.name, entry.value));
        }
        return *m_set;
    }

    bool hasProperty(const QString& name) const override { return read(name).isValid(); }

    bool boolProperty(const QString& name, bool defaultValue) const override
    {
        return get(name, defaultValue);
    }
    void setBoolProperty(const QString& name, bool value) override { set(name, value); }
    int intProperty(const QString& name, int defaultValue) const override { return get(name, defaultValue); }
    void setIntProperty(const QString& name, int value) override { set(name, value); }
    QString stringProperty(const QString& name, const QString& defaultValue) const override
    {
        return get(name, defaultValue);
    }
    void setStringProperty(const QString& name, const QString& value) override { set(name, value); }
    float floatProperty(const QString& name, float defaultValue) const override
    {
        return get(name, defaultValue);
    }
    void setFloatProperty(const QString& name, float value) override { set(name, value); }
    kogen::PropertySet propertySetProperty(const QString& name,
                                           const kogen::PropertySet& defaultValue) const override
    {
        return get(name, defaultValue);
    }
    void setPropertySetProperty(const QString& name, const kogen::PropertySet& value) override
    {
        set(name, value);
    }
    void addProperty(const kogen::BaseProperty& property) override
    {
        set(property.propertyName(), property.value());
    }

protected:
    template <class... Args>
    explicit PropertyStorage(Args&&... args)
        : Base(std::forward<Args>(args)...)
    {
    }

    /// Every property with its value, also those that are not kept in a list.
    virtual PropertyList list() const = 0;
    virtual QVariant read(const QString& name) const = 0;
    virtual void write(const QString& name, const QVariant& value) = 0;

    /// To be called by whatever changes a property other than through the setters.
    void touched() { m_set.reset(); }

    template <class T>
    T get(const QString& name, const T& defaultValue) const
    {
        const QVariant value = read(name);
        return value.userType() == qMetaTypeId<T>() ? value.template value<T>() : defaultValue;
    }

    void set(const QString& name, const QVariant& value)
    {
        write(name, value);
        touched();
    }
    template <class T>
    void set(const QString& name, const T& value)
    {
        set(name, QVariant::fromValue(value));
    }

private:
    mutable std::unique_ptr<kogen::PropertySet> m_set;
};

} // namespace ko

#endif
