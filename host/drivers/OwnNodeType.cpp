#include "drivers/OwnNodeType.h"

#include <map>

namespace ko {

namespace NodeTypes {

namespace {

struct OwnTypes
{
    QList<ENodeType> order;
    std::map<int, OwnNodeType> types; ///< which stay where they are
};

OwnTypes& own()
{
    static OwnTypes own;
    return own;
}

} // namespace

QString declareType(const OwnNodeType& type)
{
    if (int(type.type) < OwnNodeType::First)
        return QStringLiteral("the number of its type, %1, is below %2")
            .arg(int(type.type))
            .arg(OwnNodeType::First);
    if (ownType(type.type))
        return QStringLiteral("there is another type with its number, %1").arg(int(type.type));
    if (!type.name)
        return QStringLiteral("its type %1 has no name").arg(int(type.type));
    if (!type.createEditor != !type.createHintEditor)
        return QStringLiteral("its type %1 has one editor of two").arg(int(type.type));
    own().types.emplace(type.type, type);
    own().order.append(type.type);
    return QString();
}

const OwnNodeType* ownType(ENodeType type)
{
    const auto found = own().types.find(type);
    return found == own().types.end() ? nullptr : &found->second;
}

QList<ENodeType> ownTypes()
{
    return own().order;
}

} // namespace NodeTypes

} // namespace ko
