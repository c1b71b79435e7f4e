#include "kogen/PropertySet.h"

#include <algorithm>

namespace kogen {

namespace {

bool sameValue(const BaseProperty& a, const BaseProperty& b)
{
    if (a.typeName() != b.typeName())
        return false;
    // QVariant compares user types by address in Qt 5, so nested sets are compared here.
    if (a.value().userType() == qMetaTypeId<PropertySet>())
        return a.value().value<PropertySet>() == b.value().value<PropertySet>();
    return a.value() == b.value();
}

} // namespace

QStringList PropertySet::allPropertyNames() const
{
    QStringList names;
    for (const auto& entry : m_properties)
        names.append(entry.first);
    return names;
}

kom::smart<BaseProperty> PropertySet::operator[](const QString& name) const
{
    const auto found = m_properties.find(name);
    return found == m_properties.end() ? kom::smart<BaseProperty>() : found->second;
}

void PropertySet::insert(const kom::smart<BaseProperty>& property)
{
    if (!property.null())
        m_properties[property->propertyName()] = property;
}

bool operator==(const PropertySet& a, const PropertySet& b)
{
    return a.count() == b.count() &&
           std::equal(a.begin(), a.end(), b.begin(), [](const auto& left, const auto& right) {
               return left.first == right.first && sameValue(*left.second, *right.second);
           });
}

} // namespace kogen
