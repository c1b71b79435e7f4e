#include "store/PropertyCoding.h"

#include "model/PropertyList.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <limits>

namespace ko {

namespace PropertyCoding {

namespace {

// Stored in every file: never renumber.
enum Type { String = 0, Bool = 1, Int = 2, Float = 3, Set = 4 };

Type typeOf(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::QString:
        return String;
    case QMetaType::Bool:
        return Bool;
    case QMetaType::Int:
        return Int;
    case QMetaType::Float:
        return Float;
    default:
        return Set;
    }
}

QJsonObject toJson(const kogen::PropertySet& set)
{
    QJsonObject object;
    for (const auto& entry : set) {
        const QVariant value = entry.second->value();
        const Stored stored = encode(value);
        const QJsonValue json = stored.type == Set ? QJsonValue(toJson(value.value<kogen::PropertySet>()))
                                                   : QJsonValue::fromVariant(stored.value);
        object.insert(entry.first, QJsonArray{stored.type, json});
    }
    return object;
}

kogen::PropertySet fromJson(const QJsonObject& object)
{
    kogen::PropertySet set;
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QJsonArray pair = it.value().toArray();
        const int type = pair.at(0).toInt(-1);
        const QVariant value = type == Set ? QVariant::fromValue(fromJson(pair.at(1).toObject()))
                                           : decode(type, pair.at(1).toVariant());
        set.insert(PropertyList::toProperty(it.key(), value));
    }
    return set;
}

/// SQLite has no "not a number", and JSON no infinity either; these go as text.
QVariant floatToStored(float value)
{
    if (std::isnan(value))
        return QString::fromLatin1("nan");
    if (std::isinf(value))
        return QString::fromLatin1(value > 0 ? "inf" : "-inf");
    return double(value);
}

QVariant floatFromStored(const QVariant& value)
{
    if (value.userType() != QMetaType::QString)
        return value.toFloat();
    const QString text = value.toString();
    if (text == QLatin1String("nan"))
        return std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    if (text == QLatin1String("inf") || text == QLatin1String("-inf"))
        return text == QLatin1String("inf") ? infinity : -infinity;
    return 0.0F; // another program wrote it
}

} // namespace

Stored encode(const QVariant& value)
{
    const Type type = typeOf(value);
    if (type == Float)
        return {type, floatToStored(value.toFloat())};
    if (type == Bool)
        return {type, int(value.toBool())};
    if (type == Set) {
        const QJsonDocument json(toJson(value.value<kogen::PropertySet>()));
        return {type, QString::fromUtf8(json.toJson(QJsonDocument::Compact))};
    }
    // A null string would be bound as NULL.
    if (type == String && value.toString().isNull())
        return {type, QString::fromLatin1("")};
    return {type, value};
}

QVariant decode(int type, const QVariant& value)
{
    switch (type) {
    case String:
        return value.toString();
    case Bool:
        return value.toInt() != 0;
    case Int:
        return value.toInt();
    case Float:
        return floatFromStored(value);
    case Set:
        return QVariant::fromValue(fromJson(QJsonDocument::fromJson(value.toString().toUtf8()).object()));
    default:
        return QVariant();
    }
}

} // namespace PropertyCoding

} // namespace ko
