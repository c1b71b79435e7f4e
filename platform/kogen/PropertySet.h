#ifndef KOGEN_PROPERTYSET_H
#define KOGEN_PROPERTYSET_H

#include "kogen/BaseProperty.h"
#include "kom/smart.h"

#include <QMetaType>
#include <QStringList>

#include <map>

namespace kogen {

/// Properties by name, in ascending order of their names (code points, case-sensitive).
///
/// A value: copies are independent of each other. No null handle is ever stored.
class KO_PLATFORM_EXPORT PropertySet
{
public:
    typedef std::map<QString, kom::smart<BaseProperty>> Map;
    typedef Map::const_iterator const_iterator;

    const_iterator begin() const { return m_properties.begin(); }
    const_iterator end() const { return m_properties.end(); }
    int count() const { return int(m_properties.size()); }
    bool contains(const QString& name) const { return m_properties.count(name) != 0; }
    QStringList allPropertyNames() const;

    /// The property of this name, or a null handle.
    kom::smart<BaseProperty> operator[](const QString& name) const;

    /// Adds \a property under its own name, replacing one of the same name; a null handle adds nothing.
    void insert(const kom::smart<BaseProperty>& property);
    void remove(const QString& name) { m_properties.erase(name); }

    /// Same names with the same types and values.
    friend KO_PLATFORM_EXPORT bool operator==(const PropertySet& a, const PropertySet& b);

private:
    Map m_properties;
};

KO_PLATFORM_EXPORT bool operator==(const PropertySet& a, const PropertySet& b);
inline bool operator!=(const PropertySet& a, const PropertySet& b)
{
    return !(a == b);
}

} // namespace kogen

Q_DECLARE_METATYPE(kogen::PropertySet)

#endif
