#ifndef KO_HOSTHINT_H
#define KO_HOSTHINT_H

#include "drivers/PropertyStorage.h"
#include "ko/NodeHint.h"
#include "ko/NodeHintIPDevice.h"
#include "ko/PropertyKeys.h"

namespace ko {

/// A hint of this host: \a Base, a kind of NodeHint, with its properties in a list.
template <class Base>
class HostHint : public PropertyStorage<Base>
{
public:
    explicit HostHint(ENodeType type)
        : PropertyStorage<Base>(type)
    {
    }

    QString name() const override { return m_name; }
    void setName(const QString& name) override
    {
        m_name = name;
        this->touched();
    }

protected:
    PropertyList list() const override { return m_properties; }

    QVariant read(const QString& name) const override
    {
        return name == PropertyKeys::Name ? QVariant(m_name) : m_properties.value(name);
    }

    void write(const QString& name, const QVariant& value) override
    {
        if (name == PropertyKeys::Name)
            m_name = value.toString();
        else
            m_properties.set(name, value);
    }

private:
    QString m_name;
    PropertyList m_properties;
};

typedef HostHint<NodeHint> PlainHint;
typedef HostHint<NodeHintIPDevice> DeviceHint;

} // namespace ko

#endif
