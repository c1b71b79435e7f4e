#ifndef KO_PROPERTYLIST_H
#define KO_PROPERTYLIST_H

#include "HostExport.h"
#include "kogen/PropertySet.h"

#include <QVariant>
#include <QVector>

namespace ko {

/// The properties of a node in the compact form in which the host keeps them: names in ascending order,
/// values as QString, bool, int, float or kogen::PropertySet. Implicitly shared.
class KO_HOST_EXPORT PropertyList
{
public:
    struct Entry
    {
        QString name;
        QVariant value;
    };
    typedef QVector<Entry>::const_iterator const_iterator;

    const_iterator begin() const { return m_entries.cbegin(); }
    const_iterator end() const { return m_entries.cend(); }
    int count() const { return int(m_entries.size()); }

    bool contains(const QString& name) const;

    /// The value, or an invalid variant.
    QVariant value(const QString& name) const;

    /// Adds or replaces; an invalid value removes, one of another type than the five changes nothing.
    /// Names are shared between all lists of the process.
    void set(const QString& name, const QVariant& value);

    /// Takes no more memory than it needs.
    void squeeze() { m_entries.squeeze(); }

    /// What turns \a from into \a to; a removed property stands with an invalid value.
    static QVector<Entry> difference(const PropertyList& from, const PropertyList& to);

    /// Same type and value, nested sets included; numbers exactly, "not a number" equal to itself.
    static bool sameValue(const QVariant& a, const QVariant& b);

    /// The property that \a value stands for, or a null handle if it is of none of the five types.
    static kom::smart<kogen::BaseProperty> toProperty(const QString& name, const QVariant& value);

private:
    QVector<Entry> m_entries;
};

} // namespace ko

Q_DECLARE_TYPEINFO(ko::PropertyList::Entry, Q_MOVABLE_TYPE);

#endif
