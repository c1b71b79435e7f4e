#include "sharing/ParcelCoding.h"

#include "store/ChangeCoding.h"
#include "store/ChangeLog.h"
#include "store/JsonText.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cmath>

#include <simdjson.h>

namespace ko {

namespace ParcelCoding {

namespace {

namespace json = simdjson::ondemand;

/// Thrown and caught here: where a reader finds something else than it should.
struct Unreadable
{
    const char* where;
};

void require(bool isSo, const char* where)
{
    if (!isSo)
        throw Unreadable{where};
}

// Members are taken as they come: to search for them is faster nowhere, and not safe with what is no JSON.

using Value = simdjson::simdjson_result<json::value>;

template <class T>
T got(simdjson::simdjson_result<T> result, const char* where)
{
    T value{};
    require(std::move(result).get(value) == simdjson::SUCCESS, where);
    return value;
}

/// Calls \a take with the place in \a keys, and the value, of each member that is named there. The first
/// \a required must be in the object.
template <size_t Count, class Take>
void readMembers(json::object object, const std::array<const char*, Count>& keys, size_t required,
                 const Take& take)
{
    std::bitset<Count> found;
    for (simdjson::simdjson_result<json::field> each : object) {
        json::field field = got(std::move(each), "member");
        const std::string_view name = got(field.unescaped_key(), "member");
        const auto place = size_t(std::find(keys.begin(), keys.end(), name) - keys.begin());
        if (place == Count)
            continue;
        require(!found.test(place), keys.at(place));
        found.set(place);
        take(place, Value(json::value(field.value())));
    }
    for (size_t i = 0; i < required; ++i)
        require(found.test(i), keys.at(i));
}

QString textOf(Value value, const char* where)
{
    return JsonText::text(got(value.get_string(), where));
}

qint64 integerOf(Value value, const char* where)
{
    const double number = got(value.get_double(), where);
    require(std::abs(number) < 9e15 && std::floor(number) == number, where);
    return qint64(number);
}

qint64 placeOf(Value value)
{
    const qint64 place = integerOf(value, "place");
    require(place >= 0, "place");
    return place;
}

bool isNull(Value value, const char* where)
{
    const bool isNull = got(value.type(), where) == json::json_type::null; // begins as it
    require(!isNull || got(value.is_null(), where), where);
    return isNull;
}

bool isInt(qint64 number)
{
    return qint64(int(number)) == number;
}

void checkProperties(json::object properties);

/// See PropertyCoding.
void checkContent(qint64 type, Value content)
{
    if (type == 0)
        got(content.get_string(), "text");
    else if (type == 1 || type == 2)
        require(isInt(integerOf(content, "integer")), "integer");
    else if (type == 3 && got(content.type(), "float") == json::json_type::string)
        got(content.get_string(), "float");
    else if (type == 3)
        got(content.get_double(), "float");
    else if (type == 4)
        checkProperties(got(content.get_object(), "set"));
    else
        throw Unreadable{"type of a property"};
}

void checkProperties(json::object properties)
{
    for (simdjson::simdjson_result<json::field> each : properties) {
        json::field field = got(std::move(each), "property");
        got(field.unescaped_key(), "property");
        int count = 0;
        qint64 type = 0;
        for (Value part : got(field.value().get_array(), "property")) {
            require(++count <= 2, "property");
            if (count == 1)
                type = integerOf(part, "type of a property");
            else
                checkContent(type, part);
        }
        require(count == 2, "property");
    }
}

/// As it came, but for blanks.
QString propertiesOf(Value value)
{
    json::object properties = got(value.get_object(), "properties");
    const std::string_view text = got(properties.raw_json(), "properties");
    got(properties.reset(), "properties");
    checkProperties(properties);
    return QString::fromUtf8(JsonText::withoutBlanks(text));
}

/// What is there before or after a line.
struct Side
{
    bool isThere = false;
    QString text; ///< of a node: its name
    QString properties;
    std::optional<qint64> type;
    std::optional<qint64> place;
};

Side nodeSide(json::object object)
{
    Side side;
    readMembers(object, std::array{"name", "properties", "type", "place"}, 2,
                [&](size_t member, Value value) {
                    if (member == 0)
                        side.text = textOf(value, "name");
                    else if (member == 1)
                        side.properties = propertiesOf(value);
                    else if (member == 2)
                        side.type = integerOf(value, "type");
                    else
                        side.place = placeOf(value);
                });
    return side;
}

QString relationText(json::object object)
{
    RelationChange change;
    readMembers(object, std::array{"to", "type", "place"}, 3, [&](size_t member, Value value) {
        if (member == 0)
            change.relation.destination = textOf(value, "to");
        else if (member == 1)
            change.relation.type = ENodeRelationType(integerOf(value, "type"));
        else
            change.place = placeOf(value);
    });
    return ChangeCoding::text(change);
}

QString environmentsText(json::array array)
{
    Environments::List list;
    for (Value entry : array) {
        QStringList texts;
        for (Value part : got(entry.get_array(), "environment"))
            texts.append(textOf(part, "environment"));
        require(texts.size() == 2, "environment");
        list.append({texts.at(0), texts.at(1)});
    }
    return ChangeCoding::text(list);
}

Side sideOf(Value value, char kind)
{
    Side side;
    require(kind != 0, "kind"); // which comes first
    if (isNull(value, "side"))
        return side;
    if (kind == ChangeLog::NodeKind)
        side = nodeSide(got(value.get_object(), "side"));
    else if (kind == ChangeLog::RelationKind)
        side.text = relationText(got(value.get_object(), "side"));
    else if (kind == ChangeLog::SettingKind)
        side.text = textOf(value, "setting");
    else
        side.text = environmentsText(got(value.get_array(), "environments"));
    side.isThere = true;
    return side;
}

/// As the table of changes has it, which is what it is read from again. A node that is there before and after
/// says nothing of type and place.
QString textOf(const Side& side, char kind, bool isWhole)
{
    if (!side.isThere || kind != ChangeLog::NodeKind)
        return side.isThere ? side.text : QString();
    NodeChange change;
    const NodeValues values = {side.text, {}};
    require(!isWhole || (side.type && side.place), "type or place");
    if (isWhole) {
        change.type = ENodeType(*side.type);
        change.place = *side.place;
    } else {
        change.before = change.after = values;
    }
    return ChangeCoding::text(values, change, side.properties);
}

char kindOf(Value value)
{
    const QString kind = textOf(value, "kind");
    require(kind.size() == 1 && QLatin1String("NRSE").contains(kind), "kind");
    return kind.at(0).toLatin1();
}

SharedLine lineOf(json::object object)
{
    enum { Id, Kind, Line, After, Before, Done };
    SharedLine line;
    Side before;
    Side after;
    readMembers(object, std::array{"id", "kind", "line", "after", "before", "done"}, Done,
                [&](size_t member, Value value) {
                    if (member == Id)
                        line.id = textOf(value, "id");
                    else if (member == Kind)
                        line.kind = kindOf(value);
                    else if (member == Line)
                        line.line = isNull(value, "line") ? 0 : integerOf(value, "line");
                    else if (member == Done)
                        line.isDone = got(value.get_bool(), "done");
                    else
                        (member == After ? after : before) = sideOf(value, line.kind);
                });
    require(before.isThere || after.isThere, "sides");
    const bool isWhole = !before.isThere || !after.isThere;
    require(line.kind != ChangeLog::RelationKind || isWhole, "relation");
    require(line.kind != ChangeLog::EnvironmentsKind || after.isThere, "environments");
    line.before = textOf(before, line.kind, isWhole);
    line.after = textOf(after, line.kind, isWhole);
    return line;
}

Cause causeOf(json::object object)
{
    Cause cause;
    const std::array<QString*, 4> texts = {&cause.id, &cause.user, &cause.station, &cause.subject};
    readMembers(object, std::array{"id", "user", "station", "subject", "time", "purpose"}, 6,
                [&](size_t member, Value value) {
                    if (member < texts.size())
                        *texts.at(member) = textOf(value, "set");
                    else if (member == texts.size())
                        cause.time = integerOf(value, "time");
                    else
                        cause.purpose = Purposes::fromWord(textOf(value, "purpose"));
                });
    return cause;
}

SharedParcel parcelOf(json::object object)
{
    enum { OfVersion, Set, Lines, Number, Id };
    SharedParcel parcel;
    readMembers(object, std::array{"version", "set", "lines", "number", "id"}, Number,
                [&](size_t member, Value value) {
                    if (member == OfVersion)
                        require(integerOf(value, "version") == Version, "version");
                    else if (member == Set)
                        parcel.cause = causeOf(got(value.get_object(), "set"));
                    else if (member == Number)
                        parcel.number = integerOf(value, "number");
                    else if (member == Id)
                        parcel.id = textOf(value, "id");
                    else
                        for (Value line : got(value.get_array(), "lines"))
                            parcel.lines.append(lineOf(got(line.get_object(), "line")));
                });
    return parcel;
}

} // namespace

std::optional<SharedParcel> decode(const QByteArray& encoded, QString* error)
{
    thread_local json::parser parser; // keeps its memory
    const simdjson::padded_string text(encoded.constData(), size_t(encoded.size()));
    try {
        json::document document;
        require(parser.iterate(text).get(document) == simdjson::SUCCESS, "text");
        return parcelOf(got(document.get_object(), "parcel"));
    } catch (const Unreadable& unreadable) {
        *error = QString::fromLatin1("a parcel that cannot be read: %1").arg(QLatin1String(unreadable.where));
        return std::nullopt;
    }
}

} // namespace ParcelCoding

} // namespace ko
