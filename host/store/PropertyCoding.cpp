#include "store/PropertyCoding.h"

#include "store/JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>

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

QJsonObject setToJson(const kogen::PropertySet& set);
kogen::PropertySet setFromJson(const QJsonObject& object);

QJsonArray pairOf(const QVariant& value)
{
    if (typeOf(value) == Set)
        return {Set, setToJson(value.value<kogen::PropertySet>())};
    const Stored stored = encode(value);
    return {stored.type, QJsonValue::fromVariant(stored.value)};
}

QVariant valueOf(const QJsonArray& pair)
{
    const int type = pair.at(0).toInt(-1);
    return type == Set ? QVariant::fromValue(setFromJson(pair.at(1).toObject()))
                       : decode(type, pair.at(1).toVariant());
}

QJsonObject setToJson(const kogen::PropertySet& set)
{
    QJsonObject object;
    for (const auto& entry : set)
        object.insert(entry.first, pairOf(entry.second->value()));
    return object;
}

kogen::PropertySet setFromJson(const QJsonObject& object)
{
    kogen::PropertySet set;
    for (auto it = object.begin(); it != object.end(); ++it)
        set.insert(PropertyList::toProperty(it.key(), valueOf(it.value().toArray())));
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
        const QJsonDocument json(setToJson(value.value<kogen::PropertySet>()));
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
        return QVariant::fromValue(setFromJson(QJsonDocument::fromJson(value.toString().toUtf8()).object()));
    default:
        return QVariant();
    }
}

void appendJson(QString* json, const PropertyList& properties)
{
    json->append(QLatin1Char('{'));
    bool isFirst = true;
    for (const PropertyList::Entry& entry : properties) {
        if (!isFirst)
            json->append(QLatin1Char(','));
        isFirst = false;
        JsonText::appendText(json, entry.name);
        json->append(QLatin1String(":["));
        const Stored stored = encode(entry.value);
        JsonText::appendNumber(json, stored.type);
        json->append(QLatin1Char(','));
        if (stored.type == Set)
            json->append(stored.value.toString()); // is JSON already
        else if (stored.value.userType() == QMetaType::QString)
            JsonText::appendText(json, stored.value.toString());
        else
            JsonText::appendNumber(json, stored.value.toDouble());
        json->append(QLatin1Char(']'));
    }
    json->append(QLatin1Char('}'));
}

PropertyList listFromJson(const QJsonObject& object)
{
    PropertyList properties;
    for (auto it = object.begin(); it != object.end(); ++it)
        properties.set(it.key(), valueOf(it.value().toArray()));
    return properties;
}

} // namespace PropertyCoding

} // namespace ko
