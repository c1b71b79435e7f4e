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

/// JSON has no "not a number" and no infinity; these go as text.
void appendFloat(QString* json, float value)
{
    if (std::isnan(value))
        JsonText::appendText(json, QLatin1String("nan"));
    else if (std::isinf(value))
        JsonText::appendText(json, QLatin1String(value > 0 ? "inf" : "-inf"));
    else
        JsonText::appendNumber(json, double(value));
}

float floatOf(const QVariant& value)
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

void appendPair(QString* json, const QVariant& value);

/// An object of pairs. \a name and \a valueOf take what \a entries has.
template <class Entries, class Name, class Value>
void appendObject(QString* json, const Entries& entries, const Name& name, const Value& valueOf)
{
    json->append(QLatin1Char('{'));
    bool isFirst = true;
    for (const auto& entry : entries) {
        if (!isFirst)
            json->append(QLatin1Char(','));
        isFirst = false;
        JsonText::appendText(json, name(entry));
        json->append(QLatin1Char(':'));
        appendPair(json, valueOf(entry));
    }
    json->append(QLatin1Char('}'));
}

void appendPair(QString* json, const QVariant& value)
{
    const Type type = typeOf(value);
    json->append(QLatin1Char('[')).append(QLatin1Char(char('0' + type))).append(QLatin1Char(','));
    switch (type) {
    case String:
        JsonText::appendText(json, value.toString());
        break;
    case Bool:
    case Int:
        JsonText::appendNumber(json, qint64(value.toInt()));
        break;
    case Float:
        appendFloat(json, value.toFloat());
        break;
    case Set:
        appendObject(
            json, value.value<kogen::PropertySet>(), [](const auto& entry) { return entry.first; },
            [](const auto& entry) { return entry.second->value(); });
        break;
    }
    json->append(QLatin1Char(']'));
}

kogen::PropertySet setOf(const QJsonObject& object);

QVariant valueOf(const QJsonArray& pair)
{
    const int type = pair.at(0).toInt(-1);
    if (type == Set)
        return QVariant::fromValue(setOf(pair.at(1).toObject()));
    const QVariant value = pair.at(1).toVariant();
    switch (type) {
    case String:
        return value.toString();
    case Bool:
        return value.toInt() != 0;
    case Int:
        return value.toInt();
    case Float:
        return floatOf(value);
    default:
        return QVariant();
    }
}

kogen::PropertySet setOf(const QJsonObject& object)
{
    kogen::PropertySet set;
    for (auto it = object.begin(); it != object.end(); ++it)
        set.insert(PropertyList::toProperty(it.key(), valueOf(it.value().toArray())));
    return set;
}

QJsonDocument documentOf(std::string_view utf8)
{
    const QByteArray text = QByteArray::fromRawData(utf8.data(), int(utf8.size()));
    const QJsonDocument document = QJsonDocument::fromJson(text);
    // One bad byte in a value is no reason to lose the others.
    return document.isNull() ? QJsonDocument::fromJson(QString::fromUtf8(text).toUtf8()) : document;
}

} // namespace

void appendJson(QString* json, const PropertyList& properties)
{
    json->reserve(json->size() + 48 * properties.count());
    appendObject(
        json, properties, [](const PropertyList::Entry& entry) -> const QString& { return entry.name; },
        [](const PropertyList::Entry& entry) -> const QVariant& { return entry.value; });
}

PropertyList listFromJson(const QJsonObject& object)
{
    PropertyList properties;
    for (auto it = object.begin(); it != object.end(); ++it)
        properties.set(it.key(), valueOf(it.value().toArray()));
    return properties;
}

std::optional<PropertyList> listFromText(std::string_view utf8)
{
    const QJsonDocument document = documentOf(utf8);
    return document.isObject() ? std::make_optional(listFromJson(document.object())) : std::nullopt;
}

QVariant valueFromText(std::string_view utf8)
{
    return valueOf(documentOf(utf8).array());
}

} // namespace PropertyCoding

} // namespace ko
