#include "kogen/BaseProperty.h"

namespace kogen {

BaseProperty::BaseProperty(const QString& name)
    : m_name(name)
{
}

BaseProperty::~BaseProperty() = default;

} // namespace kogen
