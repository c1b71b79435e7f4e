#include "model/PropertyList.h"

#include "ko/MutexLocker.h"
#include "kogen/Property.h"

#include <QSet>

#include <algorithm>
#include <cmath>

namespace ko {

namespace {

/// One copy of each name for the whole process: a hundred thousand nodes have the same few dozen.
QString shared(const QString& name)
{
    static QMutex mutex;
    static QSet<QString> names;
    const MutexLocker locker(&mutex);
    return *names.insert(name);
}

bool before(const PropertyList::Entry& entry, const QString& name)
{
    return entry.name < name;
}

PropertyList::const_iterator find(const PropertyList& list, const QString& name)
{
    const auto found = std::lower_bound(list.begin(), list.end(), name, before);
    return found != list.end() && found->name == name ? found : list.end();
}

bool isKnownType(const QVariant& value)
{
    const int type = value.userType();
    return type == QMetaType::QString || type == QMetaType::Bool || type == QMetaType::Int ||
           type == QMetaType::Float || type == qMetaTypeId<kogen::PropertySet>();
}

bool sameSet(const kogen::PropertySet& a, const kogen::PropertySet& b)
{
    return a.count() == b.count() &&
           std::equal(a.begin(), a.end(), b.begin(), [](const auto& left, const auto& right) {
               return left.first == right.first &&
                      PropertyList::sameValue(left.second->value(), right.second->value());
           });
}

} // namespace

bool PropertyList::contains(const QString& name) const
{
    return find(*this, name) != end();
}

QVariant PropertyList::value(const QString& name) const
{
    const const_iterator found = find(*this, name);
    return found == end() ? QVariant() : found->value;
}

void PropertyList::set(const QString& name, const QVariant& value)
{
    // Whoever reads a list sets its names in their order.
    const bool isLast = m_entries.isEmpty() || m_entries.constLast().name < name;
    const int index = isLast ? count() : int(std::lower_bound(begin(), end(), name, before) - begin());
    const bool found = index < count() && m_entries.at(index).name == name;
    if (!value.isValid()) {
        if (found)
            m_entries.remove(index);
        return;
    }
    if (!isKnownType(value))
        return;
    if (found)
        m_entries[index].value = value;
    else
        m_entries.insert(index, Entry{shared(name), value});
}

QVector<PropertyList::Entry> PropertyList::difference(const PropertyList& from, const PropertyList& to)
{
    QVector<Entry> result;
    const_iterator a = from.begin();
    const_iterator b = to.begin();
    while (a != from.end() || b != to.end()) {
        if (b == to.end() || (a != from.end() && a->name < b->name)) {
            result.append(Entry{a->name, QVariant()});
            ++a;
        } else if (a == from.end() || b->name < a->name) {
            result.append(*b);
            ++b;
        } else {
            if (!sameValue(a->value, b->value))
                result.append(*b);
            ++a;
            ++b;
        }
    }
    return result;
}

bool PropertyList::sameValue(const QVariant& a, const QVariant& b)
{
    if (a.userType() != b.userType())
        return false;
    // QVariant compares numbers only roughly and user types, in Qt 5, by address.
    if (a.userType() == QMetaType::Float) {
        const float left = a.toFloat();
        const float right = b.toFloat();
        return left == right || (std::isnan(left) && std::isnan(right));
    }
    if (a.userType() == qMetaTypeId<kogen::PropertySet>())
        return sameSet(a.value<kogen::PropertySet>(), b.value<kogen::PropertySet>());
    return a == b;
}

kom::smart<kogen::BaseProperty> PropertyList::toProperty(const QString& name, const QVariant& value)
{
    const int type = value.userType();
    if (type == QMetaType::QString)
        return kom::makeSmart<kogen::StringProperty>(name, value.toString());
    if (type == QMetaType::Bool)
        return kom::makeSmart<kogen::BoolProperty>(name, value.toBool());
    if (type == QMetaType::Int)
        return kom::makeSmart<kogen::IntProperty>(name, value.toInt());
    if (type == QMetaType::Float)
        return kom::makeSmart<kogen::FloatProperty>(name, value.toFloat());
    if (type == qMetaTypeId<kogen::PropertySet>())
        return kom::makeSmart<kogen::PropertySetProperty>(name, value.value<kogen::PropertySet>());
    return kom::smart<kogen::BaseProperty>();
}

} // namespace ko
