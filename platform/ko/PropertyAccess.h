#ifndef KO_PROPERTYACCESS_H
#define KO_PROPERTYACCESS_H

#include "PlatformExport.h"
#include "kogen/PropertySet.h"

namespace ko {

/// Typed access to properties by name, shared by nodes and hints.
///
/// Names are case-sensitive ASCII. A key is read and written with the pair of its one type; a getter
/// returns its default where the property is absent or of another type. Setters create the property.
class KO_PLATFORM_EXPORT PropertyAccess
{
public:
    virtual ~PropertyAccess();

    /// All properties. The reference is good until the next change of this object.
    virtual const kogen::PropertySet& properties() const = 0;
    virtual bool hasProperty(const QString& name) const = 0;

    virtual bool boolProperty(const QString& name, bool defaultValue) const = 0;
    virtual void setBoolProperty(const QString& name, bool value) = 0;
    virtual int intProperty(const QString& name, int defaultValue) const = 0;
    virtual void setIntProperty(const QString& name, int value) = 0;
    virtual QString stringProperty(const QString& name, const QString& defaultValue) const = 0;
    virtual void setStringProperty(const QString& name, const QString& value) = 0;
    virtual float floatProperty(const QString& name, float defaultValue) const = 0;
    virtual void setFloatProperty(const QString& name, float value) = 0;
    virtual kogen::PropertySet propertySetProperty(const QString& name,
                                                   const kogen::PropertySet& defaultValue) const = 0;
    virtual void setPropertySetProperty(const QString& name, const kogen::PropertySet& value) = 0;

    /// Adds or replaces the property under its own name.
    virtual void addProperty(const kogen::BaseProperty& property) = 0;

protected:
    PropertyAccess() = default;
    PropertyAccess(const PropertyAccess&) = default;
    PropertyAccess& operator=(const PropertyAccess&) = default;
};

} // namespace ko

#endif
