#include "drivers/NodeTypes.h"

#include "drivers/DeviceNode.h"
#include "drivers/NodeDriver.h"
#include "drivers/OwnNodeType.h"
#include "drivers/ProxyProperties.h"
#include "ko/NodeHintIPDevice.h"
#include "ko/PropertyKeys.h"
#include "kogen/Property.h"
#include "model/NetworkAddress.h"

#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QPalette>
#include <QPixmap>

#include <algorithm>

namespace ko {

namespace NodeTypes {

namespace {

typedef QVector<NodeProperty> Properties;

Properties& noProperties()
{
    static Properties none;
    return none;
}

Properties& viewProperties()
{
    static Properties all = {{PropertyKeys::Nodes, QString()}};
    return all;
}

Properties& folderProperties()
{
    static Properties all = {
        {PropertyKeys::Path, QString()},
        {PropertyKeys::UseGlobalPath, false},
        {PropertyKeys::User, QString()},
        {PropertyKeys::Password, QString()},
    };
    return all;
}

Properties& cameraProperties()
{
    static Properties all = {
        {PropertyKeys::InfoFile, QString()},
        {PropertyKeys::SmoothDisplay, 0},
        {PropertyKeys::PreferredLayout, QString()},
        {PropertyKeys::AudioPathID, QString()},
        {PropertyKeys::RecordingStorageUsage, int(ViaCamera)},
        {PropertyKeys::UseRecordingTransponder, false},
        {PropertyKeys::RotorControl, 0},
        {PropertyKeys::RotorSensitivity, 0},
        {PropertyKeys::RotorFastMode, false},
        {PropertyKeys::PTZInvertX, false},
        {PropertyKeys::PTZInvertY, false},
        {PropertyKeys::PTZRotorAddress, 1},
        {PropertyKeys::PTZRotorZoom, false},
    };
    return all;
}

Properties& urlCameraProperties()
{
    static Properties all =
        cameraProperties() +
        Properties{{PropertyKeys::UrlPTZStream, QString()}, {PropertyKeys::UrlPTZStop, QString()},
                   {PropertyKeys::UrlPTZUp, QString()},     {PropertyKeys::UrlPTZDown, QString()},
                   {PropertyKeys::UrlPTZLeft, QString()},   {PropertyKeys::UrlPTZRight, QString()},
                   {PropertyKeys::UrlPTZZommIn, QString()}, {PropertyKeys::UrlPTZZoomOut, QString()}};
    return all;
}

/// At first the system's defaults apply.
Properties& remotePreviewProperties()
{
    static Properties all = {
        {PropertyKeys::RecordingTransponderUseDefault, true},
        {PropertyKeys::RecordingTransponderFramerateUseDefault, true},
        {PropertyKeys::RecordingTransponderQualityUseDefault, true},
        {PropertyKeys::RecordingTransponderResolutionUseDefault, true},
        {PropertyKeys::RecordingTransponderSoundUseDefault, true},
        {PropertyKeys::RecordingTransponderIP, QString()},
        {PropertyKeys::RecordingTransponderPort, 0},
        {PropertyKeys::RecordingTransponderSSL, false},
        {PropertyKeys::RecordingTransponderUser, QString()},
        {PropertyKeys::RecordingTransponderPassword, QString()},
    };
    return all;
}

struct TypeInfo
{
    ENodeType type;
    const char* name; ///< in the translation context "NodeTypes"
    const char* icon;
    bool canBeAdded;
    bool isDevice;
    Properties& (*properties)(); ///< that pages offer on every new node, because it carries them
};

const TypeInfo types[] = {
    {RecordingFolderType, QT_TRANSLATE_NOOP("NodeTypes", "Recording Folder"), "folder", true, false,
     folderProperties},
    {ViewType, QT_TRANSLATE_NOOP("NodeTypes", "View"), "view", true, false, viewProperties},
    {IPDeviceType, QT_TRANSLATE_NOOP("NodeTypes", "IP Camera"), "camera", true, true, cameraProperties},
    {UrlCameraType, QT_TRANSLATE_NOOP("NodeTypes", "URL Camera"), "urlCamera", true, true,
     urlCameraProperties},
    {ChannelDeviceType, QT_TRANSLATE_NOOP("NodeTypes", "Multi-Channel Device"), "channelDevice", true, true,
     cameraProperties},
    {InternalRecorderType, QT_TRANSLATE_NOOP("NodeTypes", "Internal Recorder"), "recorder", true, false,
     folderProperties},
    {RecordingTransponderType, QT_TRANSLATE_NOOP("NodeTypes", "Remote Preview Server"), "transponder", false,
     false, remotePreviewProperties},
};

const TypeInfo* find(ENodeType type)
{
    for (const TypeInfo& info : types) {
        if (info.type == type)
            return &info;
    }
    return nullptr;
}

QVariant property(const NodeData& data, const QString& key)
{
    return data.properties.value(key);
}

/// Where a node of the type is found.
QLatin1String locationKey(ENodeType type)
{
    if (type == RecordingTransponderType)
        return PropertyKeys::RecordingTransponderIP;
    return NodeTypes::isDevice(type) ? PropertyKeys::Address : PropertyKeys::Path;
}

void describeDevice(NodeData& data, const NodeHintIPDevice& hint)
{
    const auto set = [&data](const QString& key, const QVariant& value) { data.properties.set(key, value); };
    set(PropertyKeys::Address, hint.address);
    set(PropertyKeys::Port, hint.port);
    set(PropertyKeys::UseSSL, hint.useSSL);
    set(PropertyKeys::User, hint.user);
    set(PropertyKeys::Password, hint.password);
    set(PropertyKeys::CredentialsEntered, hint.credentialsEntered);
    set(PropertyKeys::Model, hint.model);
    set(PropertyKeys::Version, hint.version);
    if (!hint.macAddress.isNull())
        set(PropertyKeys::MacAddress, hint.macAddress.toString(true));
    if (hint.type == ChannelDeviceType)
        set(PropertyKeys::Channel, hint.channel);
    ProxyProperties::write(data, hint.proxy, nullptr);
}

// Parts of a lookup key are joined by a character that occurs in none of them.
const QChar separator(0x1f);
const QLatin1String deviceKey("device");

QHash<int, PropertyList>& carriedLists()
{
    static QHash<int, PropertyList> lists;
    return lists;
}

/// What a node of the type has before anything is set.
PropertyList carried(ENodeType type)
{
    auto found = carriedLists().find(type);
    if (found == carriedLists().end()) {
        found = carriedLists().insert(type, PropertyList());
        const Properties declared = properties(type);
        for (const NodeProperty& property : declared)
            found->set(property.key, property.value);
    }
    return *found;
}

void describe(NodeData& data, const NodeHint& hint)
{
    data.type = hint.type;
    data.name = hint.name();
    data.context = hint.context;
    data.hasContext = hint.context != nullptr;
    for (const auto& entry : hint.properties())
        data.properties.set(entry.first, entry.second->value());
    if (const auto* device = dynamic_cast<const NodeHintIPDevice*>(&hint))
        describeDevice(data, *device);
}

constexpr int White = 245;
constexpr int Edge = 55; // steps of gray below white that edges are smoothed over

/// What stands for \a picture on a selection: its shape in the color of the text there, open where it is
/// white. The toolkit's tint would leave a blue camera on a blue ground.
QPixmap onSelection(const QImage& picture)
{
    const QRgb ink = QGuiApplication::palette().color(QPalette::HighlightedText).rgb();
    QImage shape = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < shape.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(shape.scanLine(y));
        std::transform(line, line + shape.width(), line, [ink](QRgb pixel) {
            const int cover = qBound(0, White - qGray(pixel), Edge) * qAlpha(pixel) / Edge;
            return qRgba(qRed(ink), qGreen(ink), qBlue(ink), cover);
        });
    }
    return QPixmap::fromImage(shape);
}

} // namespace

QList<ENodeType> all()
{
    QList<ENodeType> all;
    for (const TypeInfo& info : types)
        all.append(info.type);
    return all + ownTypes();
}

QString readableName(ENodeType type)
{
    if (const OwnNodeType* own = ownType(type))
        return own->name();
    const TypeInfo* info = find(type);
    return info ? QCoreApplication::translate("NodeTypes", info->name)
                : QCoreApplication::translate("NodeTypes", "Node of type %1").arg(int(type));
}

QList<QPair<ENodeType, QString>> readableNames(const QList<ENodeType>* types, bool sorted)
{
    QList<QPair<ENodeType, QString>> names;
    QList<ENodeType> offered = types ? *types : all();
    if (!types) // whatever comes first by its name, a dialog that adds what a scan found begins with it
        offered.erase(
            std::remove_if(offered.begin(), offered.end(),
                           [](ENodeType type) { return !canBeAdded(type) || type == InternalRecorderType; }),
            offered.end());
    for (const ENodeType type : offered)
        names.append({type, readableName(type)});
    if (sorted)
        std::stable_sort(names.begin(), names.end(), [](const auto& a, const auto& b) {
            return QString::localeAwareCompare(a.second, b.second) < 0;
        });
    return names;
}

QIcon icon(ENodeType type)
{
    // Shared by all nodes: an icon keeps the pixmaps that it has rendered.
    static QHash<int, QIcon> icons;
    QIcon& icon = icons[type];
    const OwnNodeType* own = ownType(type);
    if (icon.isNull() && own && !own->icon.isEmpty()) {
        icon = QIcon(own->icon);
        icon.addPixmap(onSelection(QImage(own->icon)), QIcon::Selected);
    }
    if (icon.isNull()) {
        const TypeInfo* info = find(type);
        const QString name = QLatin1String(":/host/") + QLatin1String(info ? info->icon : "node");
        icon = QIcon(name + QLatin1String(".png"));
        for (const char* end : {".png", "@2x.png"})
            icon.addPixmap(onSelection(QImage(name + QLatin1String(end))), QIcon::Selected);
    }
    return icon;
}

bool canBeAdded(ENodeType type)
{
    const TypeInfo* info = find(type);
    return info ? info->canBeAdded : ownType(type) != nullptr;
}

bool isDevice(ENodeType type)
{
    if (const OwnNodeType* own = ownType(type))
        return own->isDevice;
    const TypeInfo* info = find(type);
    return info && info->isDevice;
}

QVector<NodeProperty> properties(ENodeType type)
{
    if (const OwnNodeType* own = ownType(type))
        return own->properties;
    const TypeInfo* info = find(type);
    return info ? info->properties() : noProperties();
}

void declareForDevices(const NodeProperty& property)
{
    urlCameraProperties().append(property); // made of the other list when it is first asked for
    cameraProperties().append(property);
    carriedLists().clear();
}

kom::smart<INodeDriverComponent> driver(ENodeType type)
{
    static const kom::smart<INodeDriverComponent> driver = kom::makeSmart<NodeDriver>();
    return find(type) || ownType(type) ? driver : kom::smart<INodeDriverComponent>();
}

std::unique_ptr<Node> createNode(const NodeData& data, const std::shared_ptr<Vault>& vault)
{
    if (data.type == ChannelDeviceType)
        return std::make_unique<ChannelDeviceNode>(data, vault);
    if (isDevice(data.type))
        return std::make_unique<DeviceNode>(data, vault);
    return std::make_unique<PlainNode>(data, vault);
}

NodeData described(const NodeHint& hint)
{
    NodeData data;
    describe(data, hint);
    return data;
}

NodeData dataOf(const NodeHint& hint)
{
    NodeData data;
    data.properties = carried(hint.type);
    describe(data, hint);
    return data;
}

NodeData remotePreviewOf(const NodeData& camera, const QString& address)
{
    NodeData data;
    data.type = RecordingTransponderType;
    data.name = QCoreApplication::translate("NodeTypes", "Remote preview of %1").arg(camera.name);
    data.properties = carried(data.type);
    data.properties.set(PropertyKeys::RecordingTransponderIP, address);
    return data;
}

NodeSummary summaryOf(const NodeData& data)
{
    NodeSummary summary;
    summary.id = data.id;
    summary.type = data.type;
    summary.name = data.name;
    summary.location = property(data, locationKey(data.type)).toString();
    const QVariant usage = property(data, PropertyKeys::RecordingStorageUsage);
    summary.recordingUsage = usage.isValid() ? usage.toInt() : -1;
    return summary;
}

QString lookupKey(const NodeData& data)
{
    if (isDevice(data.type)) {
        const QString address = NetworkAddress::key(property(data, PropertyKeys::Address).toString());
        if (address.isEmpty())
            return QString();
        const QString port = QString::number(property(data, PropertyKeys::Port).toInt());
        const QString channel = property(data, PropertyKeys::Channel).toString();
        return QStringList{deviceKey, address, port, channel}.join(separator);
    }
    if (data.type == RecordingFolderType) {
        const QString camera = property(data, PropertyKeys::CameraID).toString();
        const QString path = property(data, PropertyKeys::Path).toString();
        if (camera.isEmpty() && path.isEmpty())
            return QString();
        return QStringList{QLatin1String("folder"), camera, path}.join(separator);
    }
    return QString();
}

QString lookupKeyToday(const QString& stored)
{
    QStringList parts = stored.contains(QLatin1Char(':')) ? stored.split(separator) : QStringList();
    if (parts.value(0) != deviceKey)
        return stored;
    parts[1] = NetworkAddress::key(parts.value(1));
    return parts.join(separator);
}

} // namespace NodeTypes

} // namespace ko
