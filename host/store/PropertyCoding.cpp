#include "store/PropertyCoding.h"

#include "store/JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <charconv>
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

/// The toolkit's parser makes half of a surrogate pair of some bytes that are not text, which cannot be
/// stored.
QString wellFormed(const QString& text)
{
    return text.isValidUtf16() ? text : QString::fromUtf8(text.toUtf8());
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
        return wellFormed(value.toString());
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
        set.insert(PropertyList::toProperty(wellFormed(it.key()), valueOf(it.value().toArray())));
    return set;
}

/// Reads what appendJson() writes of the commonest values, three times as fast as through a document. Gives
/// up at anything else.
class PlainReader
{
public:
    explicit PlainReader(std::string_view utf8)
        : m_rest(utf8)
    {
    }

    std::optional<PropertyList> read()
    {
        PropertyList properties;
        const auto set = [&properties](const QString& name, const QVariant& value) {
            properties.set(name, value);
        };
        if (!readObject(set, true) || !m_rest.empty())
            return std::nullopt;
        properties.squeeze();
        return properties;
    }

private:
    /// \a set takes the entries; the sets among them only on the outside.
    template <class Set>
    bool readObject(const Set& set, bool isOutside)
    {
        if (!take("{"))
            return false;
        for (bool isFirst = true; !take("}"); isFirst = false) {
            const std::optional<QString> name = (isFirst || take(",")) ? text() : std::nullopt;
            const QVariant value = name ? pair(isOutside) : QVariant();
            if (!value.isValid())
                return false;
            set(*name, value);
        }
        return true;
    }

    bool take(std::string_view expected)
    {
        if (m_rest.substr(0, expected.size()) != expected)
            return false;
        m_rest.remove_prefix(expected.size());
        return true;
    }

    QVariant pair(bool mayBeSet)
    {
        QVariant value;
        if (take(":[0,")) {
            if (const std::optional<QString> found = text())
                value = *found;
        } else if (take(":[1,")) {
            if (const std::optional<int> found = number())
                value = *found != 0;
        } else if (take(":[2,")) {
            if (const std::optional<int> found = number())
                value = *found;
        } else if (mayBeSet && take(":[4,")) {
            kogen::PropertySet set;
            const auto insert = [&set](const QString& name, const QVariant& entry) {
                set.insert(PropertyList::toProperty(name, entry));
            };
            if (readObject(insert, false))
                value = QVariant::fromValue(set);
        }
        return take("]") ? value : QVariant();
    }

    /// Without escapes, and in UTF-8.
    std::optional<QString> text()
    {
        if (!take("\""))
            return std::nullopt;
        const size_t length = m_rest.find_first_of("\"\\");
        if (length == std::string_view::npos || m_rest[length] != '"')
            return std::nullopt;
        QString found = JsonText::text(m_rest.substr(0, length));
        m_rest.remove_prefix(length + 1);
        return found.contains(QChar::ReplacementCharacter) ? std::nullopt : std::make_optional(found);
    }

    std::optional<int> number()
    {
        int number = 0;
        const auto end = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), number);
        if (end.ec != std::errc())
            return std::nullopt;
        m_rest.remove_prefix(size_t(end.ptr - m_rest.data()));
        return number;
    }

    std::string_view m_rest;
};

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
        properties.set(wellFormed(it.key()), valueOf(it.value().toArray()));
    return properties;
}

std::optional<PropertyList> listFromText(std::string_view utf8)
{
    if (std::optional<PropertyList> plain = PlainReader(utf8).read())
        return plain;
    const QJsonDocument document = documentOf(utf8);
    return document.isObject() ? std::make_optional(listFromJson(document.object())) : std::nullopt;
}

QVariant valueFromText(std::string_view utf8)
{
    return valueOf(documentOf(utf8).array());
}

} // namespace PropertyCoding

} // namespace ko
