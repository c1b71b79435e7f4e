#ifndef KOGEN_BASEPROPERTY_H
#define KOGEN_BASEPROPERTY_H

#include "PlatformExport.h"

#include <QString>
#include <QVariant>

namespace kogen {

/// One named, typed value. Properties never change once made, so sets may share them.
class KO_PLATFORM_EXPORT BaseProperty
{
public:
    explicit BaseProperty(const QString& name);
    virtual ~BaseProperty();

    const QString& propertyName() const { return m_name; }

    /// Name of the type as browsers show it: "string", "bool", "int", "float" or "set".
    virtual QString typeName() const = 0;
    virtual QVariant value() const = 0;

private:
    Q_DISABLE_COPY(BaseProperty)
    const QString m_name;
};

} // namespace kogen

#endif
