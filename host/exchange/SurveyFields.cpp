#include "exchange/SurveyFields.h"

#include "drivers/AddressText.h"
#include "drivers/NodeTypes.h"
#include "exchange/SurveyText.h"
#include "interfaces/ISupportsChannels.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeHintIPDevice.h"
#include "ko/OutsideText.h"
#include "ko/PropertyKeys.h"
#include "model/PropertyList.h"

namespace ko {

namespace {

const int MaximumTextLength = 1024;

QString checkedText(const QString& text, QString* reason)
{
    for (const QChar c : text) {
        if (c.category() == QChar::Other_Control && c != QLatin1Char('\n'))
            *reason = SurveyText::tr("it contains control characters");
    }
    if (text.size() > MaximumTextLength)
        *reason = SurveyText::tr("it is longer than 1024 characters");
    return text;
}

QString lineOfText(const QString& cell, QString* reason)
{
    if (cell.contains(QLatin1Char('\n')))
        *reason = SurveyText::tr("it contains a line break");
    return checkedText(cell, reason);
}

/// As it is: a credential means what it is made of.
QString text(const QString& cell, QString* reason)
{
    return cell.trimmed().isEmpty() ? QString() : lineOfText(cell, reason);
}

QString shownText(const QString& cell, QString* reason)
{
    return text(OutsideText::fit(text(cell, reason)), reason);
}

/// Another path would be another folder.
QString path(const QString& cell, QString* reason)
{
    if (OutsideText::fit(cell) != cell)
        *reason = SurveyText::tr("it contains invisible characters");
    return text(cell, reason);
}

/// Names may go over several lines; programs that save a table again change the kind of line break.
QString name(const QString& cell, QString* reason)
{
    QString lines = cell;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    lines = OutsideText::fit(checkedText(lines, reason));
    return lines.trimmed().isEmpty() ? QString() : lines;
}

/// What is more than a host has columns of its own: here it would be taken for a part of the name.
QString address(const QString& cell, QString* reason)
{
    QString text = OutsideText::fit(lineOfText(cell.trimmed(), reason)).trimmed();
    const AddressText address = AddressText::parse(text);
    if (!reason->isEmpty())
        return text;
    if (!address.problem.isEmpty())
        *reason = SurveyText::tr("it is neither a host name nor an IP address");
    else if (address.port >= 0 ||
             (text != address.host && text != QLatin1Char('[') + address.host + QLatin1Char(']')))
        *reason =
            SurveyText::tr("it contains more than a host; port, SSL and user have columns of their own");
    return address.host;
}

QString number(const QString& cell, int from, int to, const char* rule, QString* reason)
{
    const QString digits = cell.trimmed();
    if (digits.isEmpty())
        return QString();
    bool good = true;
    const int value = digits.toInt(&good);
    for (const QChar c : digits)
        good = good && c >= QLatin1Char('0') && c <= QLatin1Char('9');
    if (!good || value < from || value > to)
        *reason = SurveyText::tr(rule);
    return QString::number(value);
}

QString port(const QString& cell, QString* reason)
{
    return number(cell, 0, 65535, QT_TRANSLATE_NOOP("CameraSurvey", "it is not a number from 0 to 65535"),
                  reason);
}

QString channel(const QString& cell, QString* reason)
{
    return number(cell, 1, 4, QT_TRANSLATE_NOOP("CameraSurvey", "it is not a number from 1 to 4"), reason);
}

QString yesOrNo(bool value)
{
    return QLatin1String(value ? "yes" : "no");
}

QString yesOrNoText(const QString& cell, QString* reason)
{
    static const struct
    {
        const char* word;
        bool value;
    } words[] = {{"yes", true}, {"no", false}, {"true", true}, {"false", false}, {"1", true}, {"0", false}};

    const QString given = cell.trimmed();
    if (given.isEmpty())
        return QString();
    for (const auto& word : words) {
        if (given.compare(QLatin1String(word.word), Qt::CaseInsensitive) == 0)
            return yesOrNo(word.value);
    }
    *reason = SurveyText::tr("it is not one of yes, no, true, false, 1, 0");
    return QString();
}

QString mac(const QString& cell, QString* reason)
{
    if (cell.trimmed().isEmpty())
        return QString();
    const MACAddress address(cell);
    if (address.isNull())
        *reason = SurveyText::tr("it is not a MAC address (twelve hexadecimal digits)");
    return address.toString(true);
}

const struct
{
    const char* word;
    ENodeType type;
} typeWords[] = {
    {"IP device", IPDeviceType}, {"URL camera", UrlCameraType}, {"channel device", ChannelDeviceType}};

QString type(const QString& cell, QString* reason)
{
    const QString given = cell.simplified();
    for (const auto& word : typeWords) {
        if (given.compare(QLatin1String(word.word), Qt::CaseInsensitive) == 0)
            return QString::number(int(word.type));
    }
    return number(
        given, 0, 0x7fffffff,
        QT_TRANSLATE_NOOP("CameraSurvey",
                          "it is neither a number nor one of IP device, URL camera, channel device"),
        reason);
}

QString channelOf(const IPDeviceNode& node)
{
    const auto* channels = dynamic_cast<const ISupportsChannels*>(&node);
    return channels ? QString::number(channels->channel()) : QString();
}

void setChannel(IPDeviceNode& node, const QString& value)
{
    if (auto* channels = dynamic_cast<ISupportsChannels*>(&node))
        channels->setChannel(value.toInt());
}

void setAddress(IPDeviceNode& node, const QString& value)
{
    node.setAddress(value);
    node.notifyChange(IPDeviceNode::AddressChanged);
}

void setCredentials(IPDeviceNode& node, const QString& user, const QString& password)
{
    node.setUser(user, password);
    node.setCredentialsEntered(true);
}

typedef const IPDeviceNode& Device;
typedef IPDeviceNode& WritableDevice;
typedef NodeHintIPDevice& Hint;
typedef const QString& Value;

std::vector<SurveyField> ownFields()
{
    return {
        {SurveyColumn::Name, "name", name, [](Device node) { return node.name(); },
         [](WritableDevice node, Value value) { node.setStringProperty(PropertyKeys::Name, value); },
         [](Hint hint, Value value) { hint.setName(value); }},

        {SurveyColumn::Address, "address", address, [](Device node) { return node.address(); }, setAddress,
         [](Hint hint, Value value) { hint.address = value; }},

        {SurveyColumn::Port, "port", port, [](Device node) { return QString::number(node.port()); },
         [](WritableDevice node, Value value) { node.setPort(value.toInt()); },
         [](Hint hint, Value value) { hint.port = value.toInt(); }},

        {SurveyColumn::Ssl, "SSL", yesOrNoText, [](Device node) { return yesOrNo(node.useSSL()); },
         [](WritableDevice node, Value value) { node.setUseSSL(value == yesOrNo(true)); },
         [](Hint hint, Value value) { hint.useSSL = value == yesOrNo(true); }},

        {SurveyColumn::User, "user", text, [](Device node) { return node.user(0); },
         [](WritableDevice node, Value value) { setCredentials(node, value, node.password(0)); },
         [](Hint hint, Value value) {
             hint.user = value;
             hint.credentialsEntered = true;
         }},

        {SurveyColumn::Password, "password", lineOfText, [](Device node) { return node.password(0); },
         [](WritableDevice node, Value value) { setCredentials(node, node.user(0), value); },
         [](Hint hint, Value value) {
             hint.password = value;
             hint.credentialsEntered = true;
         }},

        {SurveyColumn::Channel, "channel", channel, channelOf, setChannel,
         [](Hint hint, Value value) { hint.channel = value.toInt(); }},

        {SurveyColumn::Model, "model", shownText, [](Device node) { return node.model(); },
         [](WritableDevice node, Value value) { node.setModel(value); },
         [](Hint hint, Value value) { hint.model = value; }},

        {SurveyColumn::Mac, "MAC", mac, [](Device node) { return node.macAddress().toString(true); },
         [](WritableDevice node, Value value) { node.setMacAddress(MACAddress(value)); },
         [](Hint hint, Value value) { hint.macAddress = MACAddress(value); }},

        {SurveyColumn::RecordingPath, "recording path", path, nullptr, nullptr, nullptr},
        {SurveyColumn::Type, "type", type, nullptr, nullptr, nullptr},
    };
}

QString cellOf(const QVariant& value)
{
    return value.userType() == QMetaType::Bool ? yesOrNo(value.toBool()) : value.toString();
}

QString normalised(const NodeProperty& property, const QString& cell, QString* reason)
{
    const int type = property.value.userType();
    if (type == QMetaType::Bool)
        return yesOrNoText(cell, reason);
    if (type == QMetaType::QString)
        return shownText(cell, reason);
    QVariant value(cell.trimmed());
    if (!value.toString().isEmpty() && !value.convert(type))
        *reason = SurveyText::tr("it is not a number");
    return value.toString();
}

QString read(const NodeProperty& property, const PropertyAccess& device)
{
    const auto stored = device.properties()[property.key];
    return cellOf(stored.null() ? property.value : stored->value());
}

void write(const NodeProperty& property, PropertyAccess& device, const QString& text)
{
    const int type = property.value.userType();
    QVariant value = type == QMetaType::Bool ? QVariant(text == yesOrNo(true)) : QVariant(text);
    value.convert(type);
    device.addProperty(*PropertyList::toProperty(property.key, value));
}

SurveyField fieldOf(const NodeProperty& property, int column)
{
    return {SurveyColumn(column),
            property.column,
            [property](Value cell, QString* reason) { return normalised(property, cell, reason); },
            [property](Device node) { return read(property, node); },
            [property](WritableDevice node, Value value) { write(property, node, value); },
            [property](Hint hint, Value value) { write(property, hint, value); }};
}

} // namespace

namespace SurveyFields {

const std::vector<SurveyField>& all()
{
    static const std::vector<SurveyField> all = [] {
        std::vector<SurveyField> fields = ownFields();
        Q_ASSERT(int(fields.size()) == int(SurveyColumn::OwnCount));
        const QVector<NodeProperty> properties = NodeTypes::properties(IPDeviceType);
        for (const NodeProperty& property : properties) {
            if (property.column)
                fields.push_back(fieldOf(property, int(fields.size())));
        }
        return fields;
    }();
    return all;
}

QString typeText(int type)
{
    for (const auto& word : typeWords) {
        if (word.type == type)
            return QLatin1String(word.word);
    }
    return QString::number(type);
}

} // namespace SurveyFields

} // namespace ko
